#include "fields/ipv4_text.h"

int32_t rd_ipv4box_item(const char* directory, const char* name, uint32_t* result,
                        uint32_t fallback) {
  if (result == nullptr) return 1;
  char text[tavik::kIpv4Length + 1];
  const bool is_read = tavik::read_address(directory, name, text, tavik::kIpv4Length);
  *result = tavik::parse_ipv4(text, fallback);
  return is_read ? 0 : 1;
}

int32_t update_ipv4box_item(const char* directory, const char* name, const uint32_t* address) {
  if (address == nullptr) return -1;
  return update_item(directory, name, tavik::Ipv4Text(*address).text, tavik::kIpv4Length);
}
