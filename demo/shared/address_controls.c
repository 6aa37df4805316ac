#include "shared/address_controls.h"

#include <sys/socket.h>

#include "shared/state.h"

static void print_address(const setting* about) {
  uint32_t address = 0;
  int32_t read = rd_ipv4box_item(state_folder(), about->name, &address, 0);
  gen_xipv4box(-1, &address, read == 0 ? 0 : PF_DISABLED, " id=\"%s\" name=\"%s\"", about->name,
               about->name);
}

static int32_t store_address(const setting* about, const char* text) {
  uint32_t address = 0;
  rd_ipv4box_item(state_folder(), about->name, &address, 0);
  scan_ipv4(text, &address, address);
  return update_ipv4box_item(state_folder(), about->name, &address);
}

const control address_box = {print_address, store_address, 0};

static int32_t store_netmask(const setting* about, const char* text) {
  uint32_t mask = 0;
  scan_ipv4_netmask(text, &mask, 8, 30);
  return update_ipv4box_item(state_folder(), about->name, &mask);
}

const control netmask_box = {print_address, store_netmask, 0};

static void print_route(const setting* about) {
  ipv4_cidr route = {0, 0};
  int32_t read = rd_ipv4cidr_item(state_folder(), about->name, &route, 0);
  gen_xipv4cidr(-1, &route, read == 0 ? 0 : PF_DISABLED, " id=\"%s\" name=\"%s\"", about->name,
                about->name);
}

static int32_t store_route(const setting* about, const char* text) {
  ipv4_cidr route = {0, 0};
  rd_ipv4cidr_item(state_folder(), about->name, &route, 0);
  scan_ipv4cidr(text, &route, route.address, 1);
  return update_ipv4cidr_item(state_folder(), about->name, &route);
}

const control route_box = {print_route, store_route, 0};

/* The MAC address is kept as text. */

static void print_mac(const setting* about) {
  char text[18];
  struct sockaddr address = {0};
  uint32_t flags = read_item(state_folder(), about->name, text, 17) < 0 ? PF_DISABLED : 0;
  scan_macaddr(&address, text);
  gen_xmacbox(-1, &address, flags, " id=\"%s\" name=\"%s\"", about->name, about->name);
}

static int32_t store_mac(const setting* about, const char* text) {
  char clean[18];
  struct sockaddr address = {0};
  scan_macaddr(&address, text);
  if (!mac_isvalid(&address)) return -1;
  return update_item(state_folder(), about->name, mac_ntop(&address, ':', clean, sizeof clean), 17);
}

const control mac_box = {print_mac, store_mac, 0};
