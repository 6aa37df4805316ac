#include <string.h>

#include "fields/mac_address.h"
#include "tavik.h"

int32_t mac_isvalid(const struct sockaddr* address) {
  if (address == nullptr) return 0;
  const bool is_zero = memcmp(address->sa_data, "\0\0\0\0\0\0", tavik::kMacBytes) == 0;
  const bool is_ones = memcmp(address->sa_data, "\xFF\xFF\xFF\xFF\xFF\xFF", tavik::kMacBytes) == 0;
  return is_zero || is_ones ? 0 : 1;
}
