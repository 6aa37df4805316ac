// How the kernel is asked about an interface: through a throw-away socket and a request record.
#ifndef TAVIK_NET_INTERFACE_REQUEST_H
#define TAVIK_NET_INTERFACE_REQUEST_H

#include <net/if.h>
#include <sys/ioctl.h>
#include <sys/socket.h>

#include "items/unique_fd.h"
#include "tavik.h"

namespace tavik {

inline UniqueFd query_socket() {
  return UniqueFd(socket(AF_INET, SOCK_DGRAM, 0));
}

inline struct ifreq interface_request(const char* name) {
  struct ifreq request = {};
  strsncpy(request.ifr_name, sizeof request.ifr_name, name);
  return request;
}

}  // namespace tavik

#endif
