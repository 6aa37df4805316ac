#include <gtest/gtest.h>

#include "support/rows.h"
#include "tavik.h"

namespace {

using test::joined;

// Refuses what is ASCII at an odd number of bytes.
int32_t even_position(uint32_t position, uint32_t character) {
  return character > 0x7F || position % 2 == 0;
}

TEST(Textbox, ScansSubmittedText) {
  const struct {
    const char* source;
    uint32_t maximum, minimum, size;
    textbox_filter filter;
    std::string expected;
  } cases[] = {{"a1b2c3d4", 3, 3, 9, textbox_filter_digit, "1 123"},
               {"a1b2c3d4", 9, 5, 9, textbox_filter_digit, "-2 1234"},
               {"abcdef", 10, 0, 4, nullptr, "1 abcd"},
               {"ab\u20ACc", 10, 0, 4, nullptr, "1 ab"},
               {"ab\u20ACc", 3, 3, 9, nullptr, "1 ab\u20AC"},
               {"a\377\303bc\342\202", 10, 2, 9, nullptr, "1 ac"},
               {"abc", 0, 0, 9, nullptr, "0 "},
               {nullptr, 9, 0, 9, nullptr, "0 "},
               {"1\u00E42\u00E434", 9, 0, 9, even_position, "1 1\u00E4\u00E4"}};
  for (const auto& c : cases) {
    char out[12] = "###########";
    const int32_t result = scan_textbox(c.source, c.maximum, c.minimum, out, c.size, c.filter);
    EXPECT_EQ(joined(result, out), c.expected);
    EXPECT_EQ(out[c.expected.size() - c.expected.find(' ')], '#') << "not a byte more";
  }
  char text[] = "a-1:2";
  EXPECT_EQ(scan_textbox("b", 1, 0, text, 0, nullptr), -1);
  EXPECT_EQ(scan_textbox("b", 1, 0, nullptr, 1, nullptr), -1);
  EXPECT_EQ(scan_textbox(text, 9, 0, text, 5, textbox_filter_alnum), 1) << "in its own place";
  EXPECT_STREQ(text, "a12");
  char grows[] = "\337\377\0behind it";  // two bytes, decoded leniently, that become three
  EXPECT_EQ(scan_textbox(grows, 9, 0, grows, 12, nullptr), 0) << "no room in its own place";
}

// What a filter keeps of all characters, as hexadecimal ranges.
std::string kept(textbox_filter filter, uint32_t position) {
  std::string set;
  for (uint32_t first = 0, end; first <= 0xFFFF; first = end + 1) {
    for (end = first; end <= 0xFFFF && filter(position, end) == 1;) ++end;
    char range[16];
    snprintf(range, sizeof range, end == first + 1 ? " %02X" : " %02X-%02X", first, end - 1);
    if (end > first) set += range;
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
