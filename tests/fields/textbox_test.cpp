#include <gtest/gtest.h>

#include <cerrno>

#include "support/capture.h"
#include "support/html.h"
#include "support/scripted_io.h"
#include "support/temp_dir.h"
#include "tavik.h"

namespace {

using test::html;

void expect_box(int32_t maximum, const char* value, uint32_t flags, const std::string& expected) {
  int32_t result = 0;
  EXPECT_EQ(html("<input type='" + expected + ">"),
            test::printed([&] { result = gen_xtextbox(maximum, value, flags, nullptr); }));
  EXPECT_EQ('>', result);
}

TEST(TextBox, PrintsTheControl) {
  const uint32_t masked = PF_MASKED | PF_READONLY;
  expect_box(32, "abc", PF_SIZE, "text' size='32' maxlength='32' value='abc'");
  expect_box(8, "<\"\u00E9", PF_DATA_VALUE, "text' maxlength='8' value='&lt;&quot;&eacute;'");
  expect_box(8, "ab", PF_PASSWORD, "password' maxlength='8' value='**'");
  expect_box(8, "a", masked | PF_PASSWORD | PF_DATA_VALUE,
             "password' value='*' data-value='a' readonly");
  expect_box(4, "abc", masked | PF_DISABLED | PF_DATA_VALUE,
             "text' value='****' data-value='abc' disabled readonly");
  expect_box(-9, "abc", PF_SIZE, "text' size='2147483647' maxlength='2147483647' value='abc'");
  expect_box(-1, "a\u20AC", masked | PF_DISABLED, "text' value='****' disabled readonly");
  expect_box(-1, "ab\377z", masked, "text' value='****' readonly");
  expect_box(-1, nullptr, masked | PF_DISABLED, "text' value='' disabled readonly");
  expect_box(0, "abc", 0, "text' maxlength='0' value=''");
  expect_box(4, nullptr, 0, "text' maxlength='4'");
  expect_box(4, "", 0, "text' maxlength='4' value=''");
  expect_box(4, nullptr, masked | PF_DATA_VALUE | PF_SIZE,
             "text' size='4' value='' data-value='' readonly");
  expect_box(2, "\u20AC\u20AD\u20AE", 0, "text' maxlength='2' value='&#8364;&#8365;'");
  expect_box(1, "\u20AC\u20AD", masked | PF_DATA_VALUE,
             "text' value='*' data-value='&#8364;' readonly");
  expect_box(5, "ab\377z", 0, "text' maxlength='5' value='ab'");
  EXPECT_EQ(html("<input type='text' maxlength='2' value='v' name='<h' disabled>"),
            test::printed([] { gen_xtextbox(2, "v", PF_DISABLED, " name=\"%s%c\"", "<", 'h'); }));
}

TEST(TextBox, PrintsJsonMembers) {
  uint32_t flags = 0;
  EXPECT_EQ("\"a\": \"<\"\", \"b\": \"\", \"c\": null, \"d\": null", test::printed([&] {
              EXPECT_EQ(PF_RAW, gen_json_text("x", nullptr, PF_RAW));
              flags = gen_json_text("", "b", gen_json_text("<\"", "a", PF_RAW));
              EXPECT_EQ(PF_RAW | PF_JSON_MORE, flags);
              flags = gen_json_text("x", "d", gen_json_text(nullptr, "c", flags));
            }));
  EXPECT_EQ(PF_RAW | PF_JSON_MORE | PF_DISABLED, flags);
}

// Refuses what is ASCII at an odd number of bytes.
int32_t even_position(uint32_t position, uint32_t character) {
  return character > 0x7F || position % 2 == 0;
}

void expect_scan(const char* source, uint32_t maximum, uint32_t minimum, uint32_t size,
                 textbox_filter filter, int32_t result, const std::string& expected) {
  std::string out(12, '#');
  EXPECT_EQ(result, scan_textbox(source, maximum, minimum, out.data(), size, filter)) << expected;
  EXPECT_EQ(expected + '\0' + '#', out.substr(0, expected.size() + 2));
}

TEST(TextBox, ScansSubmittedText) {
  expect_scan("a1b2c3d4", 3, 0, 9, textbox_filter_digit, 1, "123");
  expect_scan("  1", 9, 1, 9, textbox_filter_digit, 1, "1");
  expect_scan("a1b2c3d4", 9, 5, 9, textbox_filter_digit, -2, "1234");
  expect_scan("   ", 9, 1, 9, textbox_filter_dns, -2, "");
  expect_scan("abcdef", 10, 0, 4, nullptr, 1, "abcd");
  expect_scan("ab\u20ACc", 10, 0, 4, nullptr, 1, "ab");
  expect_scan("ab\u20ACc", 3, 3, 9, nullptr, 1, "ab\u20AC");
  expect_scan("a\377\303bc\342\202", 10, 2, 9, nullptr, 1, "ac");
  expect_scan("abc", 0, 0, 9, nullptr, 0, "");
  expect_scan(nullptr, 9, 0, 9, nullptr, 0, "");
  expect_scan("1\u00E42\u00E434", 9, 0, 9, even_position, 1, "1\u00E4\u00E4");
  char text[] = "a-1:2";
  EXPECT_EQ(-1, scan_textbox("b", 1, 0, text, 0, nullptr));
  EXPECT_EQ(-1, scan_textbox("b", 1, 0, nullptr, 1, nullptr));
  EXPECT_EQ(1, scan_textbox(text, 9, 0, text, 5, textbox_filter_alnum)) << "in its own place";
  EXPECT_STREQ("a12", text);
  char grows[] = "\337\377\0behind it";  // two bytes, decoded leniently, that become three
  EXPECT_EQ(0, scan_textbox(grows, 9, 0, grows, 12, nullptr)) << "no room in its own place";
}

void expect_shown(const test::TempDir& dir, const char* name, uint32_t flags, uint32_t returned,
                  const std::string& box, const std::string& json) {
  EXPECT_EQ(html("<input type='text' " + box + ">") + "\"m\": " + json, test::printed([&] {
              EXPECT_EQ(returned, gen_xtextbox_item(dir.c_str(), name, 2, flags, " id=\"%d\"", 7));
              EXPECT_EQ(returned | PF_JSON_MORE,
                        gen_json_text_item(dir.c_str(), name, 2, "m", flags));
            }));
}

TEST(TextBox, ShowsItems) {
  const test::TempDir dir;
  const int32_t page = getpagesize();
  dir.put("long", "\u20AC\u20AC\u20AC\n");
  dir.put("bad", "a\377z\n");
  dir.put("empty", "\n");
  dir.put("page", "<" + std::string(page, 'x'));
  expect_shown(dir, "long", 0, 0, "maxlength='2' value='&#8364;&#8364;' id='7'",
               "\"\u20AC\u20AC\"");
  expect_shown(dir, "bad", PF_RAW, PF_RAW, "maxlength='2' value='a' id='7'", "\"a\377\"");
  expect_shown(dir, "empty", 0, 0, "maxlength='2' value='' id='7'", "\"\"");
  expect_shown(dir, "none", PF_MASKED, PF_MASKED | PF_DISABLED,
               "maxlength='2' value='**' id='7' disabled", "null");
  EXPECT_EQ("&lt;" + std::string(page - 2, 'x'), test::printed([&] {
              EXPECT_EQ(page - 1, gen_text_item(dir.c_str(), "page"));
              EXPECT_EQ(-1, gen_text_item(dir.c_str(), "none"));
            }));
  EXPECT_EQ("", test::printed([&] {
              const test::ScriptedIo broken(test::next_descriptor(), {{0, 2}, {EIO}});
              EXPECT_EQ(-1, gen_text_item(dir.c_str(), "page"));
            }));
  EXPECT_EQ(PF_RAW | PF_DISABLED, rd_textbox_item(dir.c_str(), "long", nullptr, 7, 7, PF_RAW));
}

void expect_stored(const std::string& text, uint32_t maximum, textbox_filter filter, int32_t result,
                   const std::string& stored) {
  const test::TempDir dir;
  dir.put("item", "old\n");
  dir.age("item");
  EXPECT_EQ(result, update_textbox_item(dir.c_str(), "item", text.c_str(), maximum, filter));
  EXPECT_EQ(stored, dir.get("item"));
  EXPECT_EQ(result != 0, dir.touched("item"));
}

TEST(TextBox, StoresWhatTheFilterLeaves) {
  expect_stored(" o l d ", 9, textbox_filter_dns, 0, "old\n");
  expect_stored("older", 3, nullptr, 0, "old\n");
  expect_stored("", 3, nullptr, 1, "\n");
  expect_stored("a\377\u20AC\u00E4z", 3, nullptr, 7, "a\u20AC\u00E4\n");
  expect_stored("new", UINT32_MAX, nullptr, 4, "new\n");
  expect_stored("new", 0x55555556, nullptr, 4, "new\n");
  expect_stored("\337\377\337\377b", 9, nullptr, 5, "\u083Fb\n");  // two bytes that become three
  expect_stored(std::string(64 << 20, 'x'), 5, nullptr, 6, "xxxxx\n");  // more than a stack holds
  const test::TempDir dir;
  dir.put("item", "old\n");
  EXPECT_EQ(-1, update_textbox_item(dir.c_str(), "item", nullptr, 3, nullptr));
  EXPECT_EQ(4, update_textbox(dir.c_str(), "item", "\u00E4\u00E4", 1));
  EXPECT_EQ("\u00E4\303\n", dir.get("item"));
}

}  // namespace
