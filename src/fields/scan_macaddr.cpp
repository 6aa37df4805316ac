#include <string.h>

#include "fields/mac_address.h"
#include "tavik.h"

namespace {

// The value of a hexadecimal digit, or -1.
int32_t digit_value(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  const int32_t lower = c | 0x20;
  return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

// Takes up to two digits and one character that is no digit; without a digit the byte is 0. At the
// end of the text the cursor stays.
char take_byte(const char** cursor) {
  int32_t value = 0;
  for (int32_t digits = 0; digits < 2 && digit_value(**cursor) >= 0; ++digits) {
    value = value * 16 + digit_value(*(*cursor)++);
  }
  if (**cursor != '\0' && digit_value(**cursor) < 0) ++*cursor;
  return static_cast<char>(value);
}

}  // namespace

int32_t scan_macaddr(struct sockaddr* address, const char* text) {
  if (address == nullptr) return 0;
  address->sa_family = ARPHRD_ETHER;
  const char* cursor = text == nullptr ? "" : text;
  char bytes[tavik::kMacBytes];
  for (char& byte : bytes) byte = take_byte(&cursor);
  if (memcmp(address->sa_data, bytes, sizeof bytes) == 0) return 0;
  memcpy(address->sa_data, bytes, sizeof bytes);
  return 1;
}
