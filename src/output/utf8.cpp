#include "tavik.h"

namespace {

bool is_continuation(unsigned char byte) {
  return byte >= 0x80;
}

}  // namespace

uint32_t utf8_to_ucs2(const char** cursor, uint32_t limit) {
  if (limit == 0 || cursor == nullptr || *cursor == nullptr) return 0;
  const auto* const bytes = reinterpret_cast<const unsigned char*>(*cursor);
  const unsigned char lead = bytes[0];
  if (lead == 0) return 0;
  if (lead < 0x80) {
    *cursor += 1;
    return lead;
  }
  if (lead < 0xC0 || lead >= 0xF0) {
    *cursor += 1;
    return 0;
  }
  if (limit == 1) return 0;
  // A sequence that a NUL breaks stops in front of it; one that another ASCII byte breaks takes
  // that byte along.
  if (!is_continuation(bytes[1])) {
    *cursor += bytes[1] == 0 ? 1 : 2;
    return 0;
  }
  const uint32_t second = bytes[1] - 0x80U;
  if (lead < 0xE0) {
    *cursor += 2;
    return (((lead - 0xC0U) << 6) + second) & 0xFFFF;
  }
  if (limit == 2) return 0;
  if (!is_continuation(bytes[2])) {
    *cursor += bytes[2] == 0 ? 2 : 3;
    return 0;
  }
  *cursor += 3;
  return (((lead - 0xE0U) << 12) + (second << 6) + (bytes[2] - 0x80U)) & 0xFFFF;
}

char* ucs2_to_utf8(char* out, uint32_t room, uint32_t character) {
  if (out == nullptr) return nullptr;
  const uint32_t needed = character < 0x80 ? 1 : character < 0x800 ? 2 : 3;
  if (room < needed) return out;
  if (needed == 1) {
    *out++ = static_cast<char>(character);
    return out;
  }
  if (needed == 2) {
    *out++ = static_cast<char>(0xC0 + (character >> 6));
  } else {
    *out++ = static_cast<char>(0xE0 + (character >> 12));
    *out++ = static_cast<char>(0x80 + ((character >> 6) & 0x3F));
  }
  *out++ = static_cast<char>(0x80 + (character & 0x3F));
  return out;
}

uint32_t utf8_length(const char* text, uint32_t limit, uint32_t* bytes) {
  if (text == nullptr) return 0;
  const char* cursor = text;
  uint32_t count = 0;
  while (count < limit && *cursor != '\0') {
    if (utf8_to_ucs2(&cursor, UINT32_MAX) == 0) {
      count = limit;
    } else {
      ++count;
    }
  }
  if (bytes != nullptr) *bytes = static_cast<uint32_t>(cursor - text);
  return count;
}
