// IPv4 addresses as text. An address is a word in network byte order.
#ifndef TAVIK_FIELDS_IPV4_TEXT_H
#define TAVIK_FIELDS_IPV4_TEXT_H

#include <arpa/inet.h>
#include <stdint.h>

#include "tavik.h"

namespace tavik {

constexpr int32_t kIpv4Length = INET_ADDRSTRLEN - 1;
static_assert(kIpv4Length == 15);
static_assert(INADDR_NONE == 0xFFFFFFFF);

struct Ipv4Text {
  explicit Ipv4Text(uint32_t address) { inet_ntop(AF_INET, &address, text, sizeof text); }
  char text[INET_ADDRSTRLEN];
};

// The address that a text gives, or the fallback if it gives none. 255.255.255.255 is none.
inline uint32_t parse_ipv4(const char* text, uint32_t fallback) {
  const uint32_t address = inet_addr(text);
  return address == INADDR_NONE ? fallback : address;
}

// Reads an address item into a buffer of count + 1 bytes, which holds the empty text if that fails:
// the bytes ahead of a read error could pass for some other address.
inline bool read_address(const char* directory, const char* name, char* buffer, int32_t count) {
  const bool is_read = read_item(directory, name, buffer, count) >= 0;
  if (!is_read) buffer[0] = '\0';
  return is_read;
}

}  // namespace tavik

#endif
