#include <string.h>

#include "tavik.h"

namespace {

constexpr char kAlphabet[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

constexpr uint8_t kPadding = 254;
constexpr uint8_t kSkipped = 255;

// What each byte stands for in a text: the value of an alphabet character, or one of the two above.
struct Codes {
  uint8_t of[256];

  constexpr Codes() : of{} {
    for (uint8_t& code : of) code = kSkipped;
    for (uint8_t value = 0; value < 64; ++value) of[static_cast<uint8_t>(kAlphabet[value])] = value;
    of[static_cast<uint8_t>('=')] = kPadding;
  }
};

constexpr Codes kCodes;

char* put_group(char* out, uint32_t group) {
  for (int shift = 18; shift >= 0; shift -= 6) *out++ = kAlphabet[(group >> shift) & 0x3F];
  return out;
}

}  // namespace

int32_t base64_encode(char* destination, int32_t size, const void* source, int32_t length) {
  const int64_t text_length = length < 1 ? 0 : (int64_t{length} + 2) / 3 * 4;
  if (destination == nullptr || size <= text_length) return -1;
  if (source == nullptr && length > 0) return -1;
  const auto* bytes = static_cast<const uint8_t*>(source);
  char* out = destination;
  for (; length >= 3; length -= 3, bytes += 3) {
    out = put_group(out, uint32_t{bytes[0]} << 16 | uint32_t{bytes[1]} << 8 | bytes[2]);
  }
  if (length > 0) {
    const uint32_t second = length == 2 ? bytes[1] : 0;
    out = put_group(out, uint32_t{bytes[0]} << 16 | second << 8);
    out[-1] = '=';
    if (length == 1) out[-2] = '=';
  }
  *out = '\0';
  return static_cast<int32_t>(text_length);
}

int32_t base64_decode(void* destination, int32_t size, const char* source, int32_t length) {
  if (length < 1) return 0;
  if (destination == nullptr || source == nullptr) return -1;
  auto* const out = static_cast<uint8_t*>(destination);
  uint32_t group = 0;
  int32_t characters = 0;
  int32_t written = 0;
  // The bytes that a group gives. Padding takes them away for good, so that nothing can follow it.
  int32_t keep = 3;
  for (int32_t i = 0; i < length; ++i) {
    const uint8_t code = kCodes.of[static_cast<uint8_t>(source[i])];
    if (code == kSkipped) continue;
    if (code == kPadding) --keep;
    if (keep < 0 || (code != kPadding && keep != 3)) return -1;
    group = group << 6 | (code == kPadding ? 0 : code);
    if (++characters < 4) continue;
    const int32_t bytes = keep > 0 ? keep : 1;
    if (bytes > size - written) return -2;
    for (int32_t n = 0; n < bytes; ++n) {
      out[written++] = static_cast<uint8_t>(group >> (16 - 8 * n));
    }
    characters = 0;
  }
  return characters > 0 ? -1 : written;
}
