#include "shared/route_list.h"

#include <arpa/inet.h>
#include <string.h>

#include "shared/state.h"
#include "shared/text_filters.h"

enum {
  LINE_SIZE = 18 + 1 + 15 + 1 + 3 * REMARK_CHARACTERS + 1,
  FILE_SIZE = ROUTE_MOST * LINE_SIZE
};

void route_print(const route* one, route_texts* out) {
  char address[INET_ADDRSTRLEN];
  inet_ntop(AF_INET, &one->network.address, address, sizeof address);
  snprintf(out->network, sizeof out->network, "%s/%u", address, one->network.prefix % 100);
  inet_ntop(AF_INET, &one->gateway, out->gateway, sizeof out->gateway);
}

static int32_t is_known(const xtable* routes, const ipv4_cidr* network) {
  for (const xtable_row* row = routes->head; row != NULL; row = row->next) {
    const route* one = (const route*)row;
    if (one->network.address == network->address && one->network.prefix == network->prefix) {
      return 1;
    }
  }
  return 0;
}

uint32_t route_add(xtable* routes, const char* network, const char* gateway, const char* remark) {
  uint32_t wrong = 0;
  ipv4_cidr scanned = {0, 0};
  uint32_t hop = 0;
  scan_ipv4cidr(network, &scanned, INADDR_NONE, 0);
  if (scanned.address == INADDR_NONE) wrong |= ROUTE_NETWORK_WRONG;
  scan_ipv4cidr(network, &scanned, 0, 1);
  scan_ipv4(gateway, &hop, INADDR_NONE);
  if (hop == INADDR_NONE || hop == INADDR_ANY) wrong |= ROUTE_GATEWAY_WRONG;
  if (is_known(routes, &scanned)) wrong |= ROUTE_NETWORK_WRONG;
  if (wrong != 0) return wrong;

  int32_t full = routes->tail != NULL && routes->tail->index >= ROUTE_MOST;
  route* added = full ? NULL : (route*)xtable_new_row(routes, sizeof(route));
  if (added == NULL) return ROUTE_NETWORK_WRONG;
  added->network = scanned;
  added->gateway = hop;
  scan_textbox(remark, REMARK_CHARACTERS, 0, added->remark, sizeof added->remark - 1,
               text_filter_line);
  return 0;
}

static int32_t take_line(uintptr_t context, char* line) {
  xtable* routes = (xtable*)context;  // NOLINT(performance-no-int-to-ptr): the word is one
  char network[19] = "";
  char gateway[16] = "";
  int remark = 0;
  if (sscanf(line, "%18s %15s %n", network, gateway, &remark) == 2) {
    route_add(routes, network, gateway, line + remark);
  }
  return 0;
}

void routes_read(xtable* routes) {
  char path[512];
  snprintf(path, sizeof path, "%s/routes", state_folder());
  rd_file_line(path, take_line, (uintptr_t)routes);
}

static const char* file_text(const xtable* routes) {
  static char text[FILE_SIZE + 1];
  size_t used = 0;
  text[0] = '\0';
  for (const xtable_row* row = routes->head; row != NULL; row = row->next) {
    const route* one = (const route*)row;
    route_texts texts;
    route_print(one, &texts);
    used += (size_t)snprintf(text + used, sizeof text - used, "%s %s %s\n", texts.network,
                             texts.gateway, one->remark);
  }
  return text;
}

int32_t routes_store(const xtable* routes) {
  return update_textarea_file(state_folder(), "routes", file_text(routes), FILE_SIZE);
}

uint32_t routes_mark(const xtable* routes) {
  const char* text = file_text(routes);
  return ~crc32(UINT32_MAX, text, (uint32_t)strlen(text));
}

static int by_network(const void* left, const void* right) {
  const ipv4_cidr* a = &(*(const route* const*)left)->network;
  const ipv4_cidr* b = &(*(const route* const*)right)->network;
  uint32_t from = ntohl(a->address);
  uint32_t to = ntohl(b->address);
  if (from != to) return from < to ? -1 : 1;
  return (int)a->prefix - (int)b->prefix;
}

int32_t routes_sort(xtable* routes, uint32_t index) {
  (void)index;
  return (int32_t)xtable_sort(routes, sizeof(xtable_row*), by_network);
}
