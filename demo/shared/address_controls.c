#include "shared/address_controls.h"

#include <sys/socket.h>

#include "shared/page.h"

/* Address, netmask, and the route with its prefix. An invalid text keeps what is stored. */

void print_address(const char* name) {
  uint32_t address = 0;
  uint32_t flags = rd_ipv4box_item(page_state(), name, &address, 0) == 0 ? 0 : PF_DISABLED;
  gen_xipv4box(-1, &address, flags, " id=\"%s\" name=\"%s\"", name, name);
}

int32_t store_address(const char* name, const char* text) {
  uint32_t address = 0;
  rd_ipv4box_item(page_state(), name, &address, 0);
  scan_ipv4(text, &address, address);
  return update_ipv4box_item(page_state(), name, &address);
}

int32_t store_netmask(const char* name, const char* text) {
  uint32_t mask = 0;
  scan_ipv4_netmask(text, &mask, 8, 30);
  return update_ipv4box_item(page_state(), name, &mask);
}

void print_route(const char* name) {
  ipv4_cidr route = {0, 0};
  uint32_t flags = rd_ipv4cidr_item(page_state(), name, &route, 0) == 0 ? 0 : PF_DISABLED;
  gen_xipv4cidr(-1, &route, flags, " id=\"%s\" name=\"%s\"", name, name);
}

int32_t store_route(const char* name, const char* text) {
  ipv4_cidr route = {0, 0};
  rd_ipv4cidr_item(page_state(), name, &route, 0);
  scan_ipv4cidr(text, &route, route.address, 1);
  return update_ipv4cidr_item(page_state(), name, &route);
}

/* The MAC address is kept as text. */

void print_mac(const char* name) {
  char text[18];
  struct sockaddr address = {0};
  uint32_t flags = read_item(page_state(), name, text, 17) < 0 ? PF_DISABLED : 0;
  scan_macaddr(&address, text);
  gen_xmacbox(-1, &address, flags, " id=\"%s\" name=\"%s\"", name, name);
}

int32_t store_mac(const char* name, const char* text) {
  char clean[18];
  struct sockaddr address = {0};
  scan_macaddr(&address, text);
  if (!mac_isvalid(&address)) return -1;
  return update_item(page_state(), name, mac_ntop(&address, ':', clean, sizeof clean), 17);
}
