// The part of a socket address record that holds a hardware address.
#ifndef TAVIK_FIELDS_MAC_ADDRESS_H
#define TAVIK_FIELDS_MAC_ADDRESS_H

#include <net/if_arp.h>
#include <stddef.h>
#include <sys/socket.h>

namespace tavik {

constexpr int32_t kMacBytes = 6;
constexpr int32_t kMacLength = 3 * kMacBytes - 1;  // as text

static_assert(sizeof(sockaddr::sa_family) == 2 && offsetof(sockaddr, sa_data) == 2);
static_assert(sizeof(sockaddr::sa_data) >= kMacBytes);
static_assert(ARPHRD_ETHER == 1);

}  // namespace tavik

#endif
