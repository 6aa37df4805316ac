#include <string.h>

#include "fields/ipv4_text.h"
#include "items/heap_text.h"

namespace {

// The address ahead of the slash. Without memory for a copy it counts as none.
uint32_t parse_ahead(const char* text, const char* slash, uint32_t fallback) {
  const tavik::HeapText copy(strndup(text, static_cast<size_t>(slash - text)));
  return copy.get() == nullptr ? fallback : tavik::parse_ipv4(copy.get(), fallback);
}

ipv4_cidr parse_cidr(const char* text, uint32_t fallback) {
  const char* const slash = strrchr(text, '/');
  if (slash == nullptr) return {tavik::parse_ipv4(text, fallback), 32};
  const uint32_t prefix = str_to_uint(slash + 1);
  return {parse_ahead(text, slash, fallback), prefix > 32 ? 32 : prefix};
}

}  // namespace

int32_t scan_ipv4cidr(const char* text, ipv4_cidr* held, uint32_t fallback, uint32_t mask) {
  if (text == nullptr || held == nullptr) return 0;
  ipv4_cidr value = parse_cidr(text, fallback);
  // Ahead of the masking: an address that only the mask makes 0 keeps its prefix.
  if (value.address == 0) value.prefix = 0;
  if (mask != 0) value.address &= htonl(gen_netmask(value.prefix));
  if (value.address == held->address && value.prefix == held->prefix) return 0;
  *held = value;
  return 1;
}
