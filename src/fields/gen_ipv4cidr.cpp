#include "fields/address_box.h"
#include "fields/cidr_text.h"

namespace {

tavik::CidrText shown(const ipv4_cidr& value) {
  return {value.address, value.prefix > 32 ? 32 : value.prefix};
}

}  // namespace

void gen_ipv4cidr(const char* name, uint32_t size, const ipv4_cidr* value, uint32_t flags) {
  if (value == nullptr) return;
  tavik::print_ipv4_input(name, size, tavik::kCidrLength, shown(*value).text, flags);
}

void gen_xipv4cidr(int32_t size, const ipv4_cidr* value, uint32_t flags, const char* format, ...) {
  if (value == nullptr) return;
  va_list arguments;
  va_start(arguments, format);
  tavik::vprint_ipv4_input(size, tavik::kCidrLength, shown(*value).text, flags, format, arguments);
  va_end(arguments);
}
