#include "fields/ipv4_text.h"
#include "fields/number_text.h"

int32_t scan_ipv4(const char* text, uint32_t* held, uint32_t fallback) {
  if (text == nullptr || held == nullptr) return 0;
  return tavik::store_change(held, tavik::parse_ipv4(text, fallback));
}

int32_t scan_ipv4_netmask(const char* text, uint32_t* held, uint32_t lowest, uint32_t highest) {
  if (text == nullptr || held == nullptr) return 0;
  // What cannot be parsed comes as all ones, and so as the narrowest mask.
  uint32_t prefix = gen_prefix(ntohl(inet_addr(text)));
  // One after the other: where the bounds cross, the highest wins for every text.
  if (prefix < lowest) prefix = lowest;
  if (prefix >= highest) prefix = highest;
  *held = htonl(gen_netmask(prefix));
  return 1;
}
