#include "fields/address_box.h"
#include "fields/ipv4_text.h"

void gen_ipv4box(const char* name, uint32_t size, const uint32_t* address, uint32_t flags) {
  if (address == nullptr) return;
  tavik::print_ipv4_input(name, size, tavik::kIpv4Length, tavik::Ipv4Text(*address).text, flags);
}

void gen_xipv4box(int32_t size, const uint32_t* address, uint32_t flags, const char* format, ...) {
  if (address == nullptr) return;
  va_list arguments;
  va_start(arguments, format);
  tavik::vprint_ipv4_input(size, tavik::kIpv4Length, tavik::Ipv4Text(*address).text, flags, format,
                           arguments);
  va_end(arguments);
}
