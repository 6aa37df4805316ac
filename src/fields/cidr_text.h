// An IPv4 address with a prefix as text: dotted quad, slash, decimal prefix.
#ifndef TAVIK_FIELDS_CIDR_TEXT_H
#define TAVIK_FIELDS_CIDR_TEXT_H

#include <stdint.h>
#include <stdio.h>

#include "fields/ipv4_text.h"

namespace tavik {

constexpr int32_t kCidrLength = kIpv4Length + 3;
static_assert(sizeof(ipv4_cidr) == 8);

struct CidrText {
  CidrText(uint32_t address, uint32_t prefix) {
    snprintf(text, sizeof text, "%s/%u", Ipv4Text(address).text, prefix);
  }
  char text[kCidrLength + 1];
};

}  // namespace tavik

#endif
