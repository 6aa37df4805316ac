#include <string.h>

#include "fields/mac_address.h"
#include "tavik.h"

char* mac_ntop(const struct sockaddr* address, char separator, char* buffer, uint32_t size) {
  if (address == nullptr || buffer == nullptr || size == 0) return buffer;
  constexpr char kDigits[] = "0123456789ABCDEF";
  char text[tavik::kMacLength + 1];
  char* out = text;
  for (int32_t i = 0; i < tavik::kMacBytes; ++i) {
    const auto byte = static_cast<unsigned char>(address->sa_data[i]);
    *out++ = kDigits[byte >> 4];
    *out++ = kDigits[byte & 0xF];
    *out++ = separator;
  }
  const uint32_t length = size > tavik::kMacLength ? tavik::kMacLength : size - 1;
  memcpy(buffer, text, length);
  buffer[length] = '\0';
  return buffer;
}
