#include "tavik.h"

uint32_t gen_netmask(uint32_t prefix) {
  if (prefix == 0) return 0;
  return prefix >= 32 ? UINT32_MAX : UINT32_MAX << (32 - prefix);
}

uint32_t gen_prefix(uint32_t mask) {
  return mask == UINT32_MAX ? 32 : static_cast<uint32_t>(__builtin_clz(~mask));
}
