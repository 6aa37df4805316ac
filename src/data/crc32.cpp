#include "tavik.h"

namespace {

// The reflected CRC-32 of each byte.
struct Table {
  uint32_t of[256];

  constexpr Table() : of{} {
    for (uint32_t byte = 0; byte < 256; ++byte) {
      uint32_t crc = byte;
      for (int bit = 0; bit < 8; ++bit) crc = (crc >> 1) ^ (crc & 1 ? 0xEDB88320 : 0);
      of[byte] = crc;
    }
  }
};

constexpr Table kTable;
static_assert(sizeof kTable == 1024);

}  // namespace

uint32_t crc32(uint32_t crc, const void* data, uint32_t length) {
  if (data == nullptr) return crc;
  const auto* const bytes = static_cast<const uint8_t*>(data);
  for (uint32_t i = 0; i < length; ++i) crc = kTable.of[(crc ^ bytes[i]) & 0xFF] ^ (crc >> 8);
  return crc;
}
