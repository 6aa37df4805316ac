#include "request/url_unescape.h"

#include <stdint.h>

namespace tavik {

namespace {

// Any byte has a value, so that no input can be refused; only hexadecimal digits have their own.
uint32_t digit_value(char c) {
  const uint32_t byte = static_cast<unsigned char>(c);
  return byte > 0x40 ? (byte & ~0x20U) - 0x37 : byte - 0x30;
}

}  // namespace

void url_unescape(char* text) {
  char* out = text;
  while (*text != '\0') {
    if (*text != '%') {
      *out++ = *text++;
      continue;
    }
    if (text[1] == '\0' || text[2] == '\0') break;
    const uint32_t byte = (digit_value(text[1]) << 4) + digit_value(text[2]);
    *out++ = static_cast<char>(static_cast<unsigned char>(byte));
    text += 3;
  }
  *out = '\0';
}

}  // namespace tavik
