#include <gtest/gtest.h>

#include <bitset>
#include <sstream>

#include "tavik.h"

namespace {

// Hexadecimal values and ranges, as in "20 30-39".
std::bitset<0x10000> parse_set(const std::string& text) {
  std::bitset<0x10000> set;
  std::istringstream words(text);
  for (std::string word; words >> word;) {
    const auto first = std::stoul(word, nullptr, 16);
    const auto last = std::stoul(word.substr(word.find('-') + 1), nullptr, 16);
    for (auto value = first; value <= last; ++value) set.set(value);
  }
  return set;
}

TEST(TextboxFilter, KeepsItsSetOfAllCharacters) {
  const struct {
    textbox_filter filter;
    std::string later, first = later;
  } cases[] = {
      {textbox_filter_alnum, "30-39 41-5A 61-7A"},
      {textbox_filter_digit, "30-39"},
      {textbox_filter_ascii_printable, "21 23-26 28-5F 61-7E"},
      {textbox_filter_dns, "2D-2E 30-39 41-5A 61-7A"},
      {textbox_filter_dns6, "2D-2E 30-3A 41-5A 61-7A"},
      {textbox_filter_cname, "2D-2E 30-39 40-5A 5F 61-7A"},
      {textbox_filter_asn1, "20 2A 2D-2E 30-39 40-5A 5F 61-7A"},
      {textbox_filter_ip6prefix, "2F-3A 41-46 61-66"},
      {textbox_filter_octet, "01-7F", "01-1F 21-7F"},
      {textbox_filter_ppp_username, "21 23-26 28-5F 61-7F"},
      {textbox_filter_ppp_password, "21 23-26 28-5F 61-7F", "21 23-26 28-29 2B-3E 40-5F 61-7F"},
      {textbox_filter_shell_quoted, "01-21 23 25-26 28-5B 5D-5F 61-FFFF"},
      {textbox_filter_smtp, "01-1F 21 23 25-26 28-29 2B-39 3B-3E 40-5B 5D-5F 61-FFFF"},
  };
  for (const auto& c : cases) {
    for (const uint32_t position : {0U, 1U, UINT32_MAX}) {
      const auto kept = parse_set(position == 0 ? c.first : c.later);
      for (uint32_t character = 1; character <= 0xFFFF; ++character) {
        ASSERT_EQ(kept[character] ? 1 : 0, c.filter(position, character))
            << std::hex << character << " at " << position << " by the set " << c.later;
      }
    }
  }
}

}  // namespace
