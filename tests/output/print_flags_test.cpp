#include <gtest/gtest.h>

#include "support/capture.h"
#include "tavik.h"

namespace {

TEST(PrintFlags, PrintsItsAttributesInOrder) {
  const struct {
    uint32_t flags;
    const char* expected;
  } cases[] = {
      {0, ""},
      {0xFFFFF270, ""},
      {0x1 | 0x2, " checked disabled"},
      {0x4, " readonly"},
      {0x8, " selected"},
      {0x80 | 0x100, " style=\"display: none;\" style=\"visibility: hidden;\""},
      {0x400, " autocomplete=\"off\""},
      {0x800, " autocomplete=\"on\""},
      {0xFFFFFFFF,
       " checked disabled readonly selected style=\"display: none;\""
       " style=\"visibility: hidden;\" autocomplete=\"default\""},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(c.expected, test::printed([&] { print_flags(c.flags); })) << c.flags;
  }
}

TEST(PrintFlags, SeparatesJsonMembers) {
  EXPECT_EQ(", ", test::printed([] { print_json_flags(PF_JSON_MORE | PF_DISABLED); }));
  EXPECT_EQ("", test::printed([] { print_json_flags(~PF_JSON_MORE); }));
}

TEST(PrintFlags, GivesAttributesByIndex) {
  const char* const expected[] = {"", " disabled", " checked", " readonly", " selected", ""};
  for (uint32_t i = 0; i < 6; ++i) EXPECT_STREQ(expected[i], html_attr(i));
  EXPECT_STREQ("", html_attr(PF_SELECTED));
  EXPECT_STREQ("", html_attr(UINT32_MAX));
}

TEST(PrintXstr, EscapesUnlessRaw) {
  const struct {
    uint32_t flags;
    const char* expected;
  } cases[] = {
      {0, "&lt;\n"},
      {PF_CRLF, "&lt;\n"},
      {PF_RAW, "<\n"},
      {PF_RAW | PF_CRLF | PF_DISABLED, "<\r\n"},
  };
  for (const auto& c : cases) {
    uint32_t result = 0;
    EXPECT_EQ(c.expected, test::printed([&] { result = print_xstr("<\n", c.flags); }));
    EXPECT_EQ(strlen(c.expected), result);
    EXPECT_EQ(0U, print_xstr(nullptr, c.flags));
  }
}

TEST(PrintXstr, ChoosesLineEndsByTheText) {
  EXPECT_EQ(PF_RAW | PF_CRLF, get_print_flags(PF_RAW, "Mozilla/5.0 (Windows NT 10.0)"));
  EXPECT_EQ(PF_RAW, get_print_flags(PF_RAW, "X11; windows"));
  EXPECT_EQ(PF_RAW | PF_CRLF, get_print_flags(PF_RAW | PF_CRLF, nullptr));
}

}  // namespace
