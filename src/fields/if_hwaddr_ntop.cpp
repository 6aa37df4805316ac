#include <net/if.h>
#include <sys/ioctl.h>

#include "items/unique_fd.h"
#include "tavik.h"

static_assert(SIOCGIFHWADDR == 0x8927 && IFNAMSIZ == 16);

char* if_hwaddr_ntop(const char* interface, char separator, char* buffer, uint32_t size) {
  if (buffer == nullptr || size == 0) return buffer;
  buffer[0] = '\0';
  const tavik::UniqueFd query(socket(AF_INET, SOCK_DGRAM, 0));
  struct ifreq request = {};
  strsncpy(request.ifr_name, sizeof request.ifr_name, interface);
  if (ioctl(query.get(), SIOCGIFHWADDR, &request) < 0) return buffer;
  return mac_ntop(&request.ifr_hwaddr, separator, buffer, size);
}
