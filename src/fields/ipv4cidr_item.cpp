#include "fields/cidr_text.h"

int32_t rd_ipv4cidr_item(const char* directory, const char* name, ipv4_cidr* value,
                         uint32_t fallback) {
  if (value == nullptr) return 1;
  char text[tavik::kCidrLength + 1];
  const bool is_read = tavik::read_address(directory, name, text, tavik::kCidrLength);
  scan_ipv4cidr(text, value, fallback, 0);
  return is_read ? 0 : 1;
}

// Unlike the control it stores the prefix as it is held, cut where the text is full.
int32_t update_ipv4cidr_item(const char* directory, const char* name, const ipv4_cidr* value) {
  if (value == nullptr) return -1;
  const tavik::CidrText line(value->address, value->prefix);
  return update_item(directory, name, line.text, tavik::kCidrLength);
}
