#include <gtest/gtest.h>

#include "support/capture.h"
#include "tavik.h"

namespace {

void expect(uint32_t flags, const std::string& expected) {
  EXPECT_EQ(expected, test::printed([flags] { print_flags(flags); })) << flags;
}

TEST(PrintFlags, PrintsItsAttributesInOrder) {
  expect(0xFFFFF270, "");
  expect(0x1 | 0x2, " checked disabled");
  expect(0x80, " style=\"display: none;\"");
  expect(0x400, " autocomplete=\"off\"");
  expect(0x800, " autocomplete=\"on\"");
  expect(0xFFFFFFFF,
         " checked disabled readonly selected style=\"display: none;\""
         " style=\"visibility: hidden;\" autocomplete=\"default\"");
}

TEST(PrintFlags, GivesAttributesByIndex) {
  const char* const expected[] = {"", " disabled", " checked", " readonly", " selected", ""};
  for (uint32_t i = 0; i < 6; ++i) EXPECT_STREQ(expected[i], html_attr(i));
  EXPECT_STREQ("", html_attr(PF_SELECTED));
}

TEST(PrintXstr, EscapesUnlessRaw) {
  const char* const expected[] = {"&lt;\n", "<\n", "&lt;\n", "<\r\n"};
  const uint32_t flags[] = {0, PF_RAW, PF_CRLF, PF_RAW | PF_CRLF | PF_DISABLED};
  for (size_t i = 0; i < 4; ++i) {
    uint32_t result = 0;
    EXPECT_EQ(expected[i], test::printed([&] { result = print_xstr("<\n", flags[i]); }));
    EXPECT_EQ(strlen(expected[i]), result);
  }
  EXPECT_EQ(PF_RAW | PF_CRLF, get_print_flags(PF_RAW, "Mozilla/5.0 (Windows NT 10.0)"));
  EXPECT_EQ(PF_RAW, get_print_flags(PF_RAW, "X11; windows"));
  EXPECT_EQ(PF_RAW, get_print_flags(PF_RAW, nullptr));
}

}  // namespace
