#include "shared/interface_cells.h"

#include <arpa/inet.h>
#include <net/if.h>
#include <string.h>

#include "shared/state.h"

/* The interface being read: the callbacks have no argument that could carry it. */
static char cells[CELL_COUNT][CELL_SIZE];

enum { NO_PREFIX = 129 };

static void add_address(int column, int family, const void* address, uint32_t prefix) {
  char* cell = cells[column];
  char text[INET6_ADDRSTRLEN];
  char behind[8] = "";
  size_t used = strlen(cell);
  inet_ntop(family, address, text, sizeof text);
  if (prefix < NO_PREFIX) snprintf(behind, sizeof behind, "/%u", (unsigned)prefix);
  snprintf(cell + used, CELL_SIZE - used, "%s%s%s", used > 0 ? ", " : "", text, behind);
}

/*
 * An alias belongs to the interface ahead of its colon, "eth10" does not belong to "eth1". The
 * kernel tells the netmask of the first address under a name only.
 */
static int32_t add_ipv4(const struct ifreq* request, int32_t number) {
  const char* behind = request->ifr_name + strlen(cells[CELL_NAME]);
  struct sockaddr_in address;
  iface_info info;
  (void)number;
  if (*behind != '\0' && *behind != ':') return 0;
  memcpy(&address, &request->ifr_addr, sizeof address);
  if (cfg_interface(&info, get_interface(request->ifr_name, &info)) != 0) return 0;
  int32_t first = info.address.in.sin_addr.s_addr == address.sin_addr.s_addr;
  uint32_t mask = ntohl(info.netmask.in.sin_addr.s_addr);
  add_address(CELL_IPV4, AF_INET, &address.sin_addr, first ? gen_prefix(mask) : NO_PREFIX);
  return 0;
}

static int32_t add_ipv6(const iface_info* info) {
  add_address(CELL_IPV6, AF_INET6, &info->address.in6.sin6_addr, info->netmask.words[1]);
  return 0;
}

static void read_cells(const char* name) {
  static const char* const links[] = {"unknown", "down", "up"};
  iface_info info;
  uint32_t phy = 0;
  memset(cells, 0, sizeof cells);
  strsncpy(cells[CELL_NAME], CELL_SIZE, name);
  int32_t found = get_interface(name, &info) == 0;
  strsncpy(cells[CELL_STATE], CELL_SIZE, found && (info.flags & IFF_UP) != 0 ? "up" : "down");
  read_item_uint(state_folder(), "phy", &phy);
  strsncpy(cells[CELL_LINK], CELL_SIZE, links[get_link_status(name, phy) + 1]);
  read_interface_conf(name, add_ipv4);
  read_interface6_conf(name, add_ipv6);
}

void interface_cells_each(void (*print)(char cells[CELL_COUNT][CELL_SIZE], int32_t more)) {
  struct if_nameindex* interfaces = if_nameindex();
  if (interfaces == NULL) return;
  for (int i = 0; interfaces[i].if_name != NULL; i++) {
    read_cells(interfaces[i].if_name);
    print(cells, i > 0);
  }
  if_freenameindex(interfaces);
}
