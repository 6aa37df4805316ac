#include <gtest/gtest.h>

#include "support/capture.h"
#include "tavik.h"

namespace {

template <typename... Arguments>
void expect(uint32_t raw, const std::string& expected, const char* format, Arguments... arguments) {
  int32_t result = -1;
  EXPECT_EQ(expected, test::printed([&] { result = html_printf(raw, format, arguments...); }))
      << format;
  EXPECT_EQ(static_cast<int32_t>(expected.size()), result) << format;
}

TEST(HtmlPrintf, EscapesArgumentsAlwaysAndLiteralsUnlessRaw) {
  expect(1, " value=\"a&quot;b\"", " value=\"%s\"", "a\"b");
  expect(0, "&lt;x&gt;", "<%s>", "x");
  expect(7, "<\xFF\xC3>&eacute;", "<\xFF\xC3>%s", "\xC3\xA9");
  expect(0, "a|b&amp;", "a\xFFlost%c\xC3%sb&", '|', "");
  expect(1, "&lt;&#8226;&eacute;", "%c%c%c", '<', 0x2022, 0x700E9);
  expect(1, "a\"", "%s\"", "a\xFFz");
  expect(1, "", "");
}

TEST(HtmlPrintf, LimitsTextsAndRepeatsCharacters) {
  expect(1, "abc|abc|", "%3s|%8s|", "abcdef", "abc");
  expect(1, "&auml;&ouml;.", "%2s.", "\xC3\xA4\xC3\xB6\xC3\xBC");
  expect(1, "abc-x", "%*s-%s", -1, "abc", "x");
  expect(1, "-x", "%*s-%s", 0, "abc", "x");
  expect(1, " value=\"&#8226;&#8226;&#8226;\"", " value=\"%*c\"", 3, 0x2022);
  expect(1, "-B-CC", "%0c-%c-%02c", 'A', 'B', 'C');
  expect(1, "ABCDE,ABCDE,ABC,", "%.5s,%-5s,%#03s,", "ABCDEF", "ABCDEF", "ABCDEF");
  expect(1, "abcdefghijklmnopqrs", "%1.9s", "abcdefghijklmnopqrstuvwxyz");
  // Digits behind a "*" go on from the digits in front of it; a negative "*" changes nothing.
  expect(1, "aaa,bbbbbbbbbb,cc,dd", "%9*c,%1*0c,%2*c,%*2c", 3, 'a', -1, 'b', -1, 'c', 9, 'd');
}

TEST(HtmlPrintf, LeavesIntegersToTheCLibrary) {
  expect(1, "   42|42   |00042|ff", "%5d|%-5d|%05u|%x", 42, 42, 42, 255);
  expect(0, "-7 +7 0x00ff FF 4294967295 -56", "%i %+d %#.4x %X %u %hhd", -7, 7, 255, 255, -1, 200);
  expect(1, "-5 4000000000 beef/x", "%ld %lu %lx/%s", -5L, 4000000000UL, 0xBEEFL, "x");
  // More integers than a call passes in registers, texts among them.
  expect(1, "1a2b3c4d5e", "%d%s%d%s%d%s%d%s%d%s", 1, "a", 2, "b", 3, "c", 4, "d", 5, "e");
  expect(1, "1" + std::string(299, ' '), "%0000000000000000000000000000000-300d", 1);
}

TEST(HtmlPrintf, SkipsWhatItDoesNotKnow) {
  expect(1, "100%", "100%%");
  expect(1, "abc", "abc%5");
  expect(1, "a%b", "a%5%b");
  expect(1, "", "%q ab");
  expect(1, "x!", "%f ps!", "x");
  expect(1, "", "%s", static_cast<const char*>(nullptr));
  expect(1, "", "%c", 0);
}

}  // namespace
