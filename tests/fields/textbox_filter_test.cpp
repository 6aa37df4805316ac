#include <gtest/gtest.h>

#include "tavik.h"

namespace {

// What a filter keeps of all characters, as hexadecimal ranges.
std::string kept(textbox_filter filter, uint32_t position) {
  std::string set;
  for (uint32_t first = 1; first <= 0xFFFF; ++first) {
    uint32_t end = first;
    while (end <= 0xFFFF && filter(position, end) == 1) ++end;
    if (end == first) continue;
    char range[16];
    snprintf(range, sizeof range, end == first + 1 ? " %02X" : " %02X-%02X", first, end - 1);
    set += range;
    first = end - 1;
  }
  return set;
}

TEST(TextboxFilter, KeepsItsSetOfAllCharacters) {
  const std::tuple<textbox_filter, const char*, const char*> cases[] = {
      {textbox_filter_alnum, " 30-39 41-5A 61-7A", nullptr},
      {textbox_filter_digit, " 30-39", nullptr},
      {textbox_filter_ascii_printable, " 21 23-26 28-5F 61-7E", nullptr},
      {textbox_filter_dns, " 2D-2E 30-39 41-5A 61-7A", nullptr},
      {textbox_filter_dns6, " 2D-2E 30-3A 41-5A 61-7A", nullptr},
      {textbox_filter_cname, " 2D-2E 30-39 40-5A 5F 61-7A", nullptr},
      {textbox_filter_asn1, " 20 2A 2D-2E 30-39 40-5A 5F 61-7A", nullptr},
      {textbox_filter_ip6prefix, " 2F-3A 41-46 61-66", nullptr},
      {textbox_filter_octet, " 01-7F", " 01-1F 21-7F"},
      {textbox_filter_ppp_username, " 21 23-26 28-5F 61-7F", nullptr},
      {textbox_filter_ppp_password, " 21 23-26 28-5F 61-7F", " 21 23-26 28-29 2B-3E 40-5F 61-7F"},
      {textbox_filter_shell_quoted, " 01-21 23 25-26 28-5B 5D-5F 61-FFFF", nullptr},
      {textbox_filter_smtp, " 01-1F 21 23 25-26 28-29 2B-39 3B-3E 40-5B 5D-5F 61-FFFF", nullptr}};
  for (const auto& [filter, later, first] : cases) {
    EXPECT_EQ(kept(filter, 1), later);
    EXPECT_EQ(kept(filter, 0), first == nullptr ? later : first);
  }
}

}  // namespace
