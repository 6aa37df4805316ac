#include <string.h>

#include "net/interface_request.h"

static_assert(sizeof(iface_address) == 28 && sizeof(iface_info) == 60);
static_assert(offsetof(iface_info, netmask) == 28 && offsetof(iface_info, flags) == 56);
static_assert(SIOCGIFFLAGS == 0x8913 && SIOCGIFADDR == 0x8915 && SIOCGIFNETMASK == 0x891B);
static_assert(AF_INET == 2 && AF_INET6 == 10);

int32_t get_interface(const char* name, iface_info* info) {
  if (name == nullptr || info == nullptr) return -1;
  const tavik::UniqueFd query = tavik::query_socket();
  info->flags = 0;
  struct ifreq request = tavik::interface_request(name);
  if (ioctl(query.get(), SIOCGIFFLAGS, &request) < 0) return -1;
  info->flags = static_cast<uint16_t>(request.ifr_flags);
  info->address = {};
  info->netmask = {};
  request = tavik::interface_request(name);
  request.ifr_addr.sa_family = AF_INET;
  if (ioctl(query.get(), SIOCGIFADDR, &request) != 0) return 0;
  memcpy(&info->address, &request.ifr_addr, sizeof request.ifr_addr);
  // The request still holds the address: of several under one name, the kernel takes its mask.
  if (ioctl(query.get(), SIOCGIFNETMASK, &request) < 0) return 0;
  memcpy(&info->netmask, &request.ifr_netmask, sizeof request.ifr_netmask);
  return 0;
}

int32_t cfg_interface(const iface_info* info, int32_t status) {
  if (status != 0) return status;
  if (info == nullptr) return 1;
  const sa_family_t family = info->address.in.sin_family;
  return family == AF_INET || family == AF_INET6 ? 0 : 1;
}
