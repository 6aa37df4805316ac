#include <gtest/gtest.h>

#include "support/capture.h"
#include "tavik.h"

namespace {

using test::printed;

TEST(PrintFlags, PrintsItsAttributesInOrder) {
  const auto attributes = [](uint32_t flags) { return printed([=] { print_flags(flags); }); };
  EXPECT_EQ("", attributes(0xFFFFF270));
  EXPECT_EQ(" checked disabled", attributes(0x1 | 0x2));
  EXPECT_EQ(" autocomplete=\"off\"", attributes(0x400));
  EXPECT_EQ(" style=\"display: none;\" autocomplete=\"on\"", attributes(0x880));
  EXPECT_EQ(
      " checked disabled readonly selected style=\"display: none;\""
      " style=\"visibility: hidden;\" autocomplete=\"default\"",
      attributes(UINT32_MAX));
  const char* const by_index[] = {"", " disabled", " checked", " readonly", " selected", ""};
  for (uint32_t i = 0; i < 6; ++i) EXPECT_STREQ(by_index[i], html_attr(i));
  EXPECT_STREQ("", html_attr(PF_SELECTED));
}

TEST(PrintXstr, EscapesUnlessRaw) {
  const char* const expected[] = {"&lt;\n", "<\n", "&lt;\n", "<\r\n"};
  const uint32_t flags[] = {0, PF_RAW, PF_CRLF, PF_RAW | PF_CRLF | PF_DISABLED};
  for (size_t i = 0; i < 4; ++i) {
    EXPECT_EQ(expected[i],
              printed([&] { EXPECT_EQ(strlen(expected[i]), print_xstr("<\n", flags[i])); }));
  }
  EXPECT_EQ(PF_RAW | PF_CRLF, get_print_flags(PF_RAW, "Mozilla/5.0 (Windows NT 10.0)"));
  EXPECT_EQ(PF_RAW, get_print_flags(PF_RAW, "X11; windows"));
  EXPECT_EQ(PF_RAW, get_print_flags(PF_RAW, nullptr));
}

}  // namespace
