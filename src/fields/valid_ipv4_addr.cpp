#include <arpa/inet.h>

#include "tavik.h"

int32_t valid_ipv4_addr(uint32_t* result, uint32_t address, uint32_t mask) {
  if (result == nullptr || address == INADDR_NONE || address == INADDR_ANY) return 0;
  const uint32_t network_bits = ntohl(mask);
  uint32_t host = ntohl(address);
  if ((host & ~network_bits) == 0) ++host;
  // On the value as it now stands: a /32 takes the increment back, a /31 ends on its even address.
  if ((host | network_bits) == UINT32_MAX) --host;
  *result = htonl(host);
  return 1;
}
