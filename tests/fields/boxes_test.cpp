#include <gtest/gtest.h>

#include "support/capture.h"
#include "support/temp_dir.h"
#include "tavik.h"

namespace {

constexpr uint32_t kOff = PF_READONLY | PF_DISABLED;

TEST(Boxes, DifferInWhatTheyPrintAndWhere) {
  EXPECT_EQ(checkbox_flags(5, 7) << 4 | checkbox_flags(0, 0), 0x30U);
  EXPECT_EQ(test::printed([] {
              EXPECT_EQ(gen_xcheckbox(checkbox_flags(1, 0), " name=%s", "<n>"), '>');
              gen_xcheckbox(checkbox_flags(0, 1), nullptr);
              EXPECT_EQ(gen_numberbox("<n>", 5, 3, ~0U, kOff), '>');
              gen_numberbox(nullptr, 0, 0, 0, 0);
              EXPECT_EQ(gen_xnumberbox(3, ~0U, kOff, " name=%s", "<n>"), '>');
              gen_xnumberbox(3, 7, PF_SIZE, nullptr);
            }),
            R"(<input type="checkbox" name=<n> checked><input type="checkbox" disabled>)"
            R"(<input type="text" name="<n>" size="5" maxlength="3" value="4294967295")"
            R"( disabled readonly><input type="text" size="0" maxlength="0" value="0">)"
            R"(<input type="text" value="4294967295" name=<n> disabled readonly>)"
            R"(<input type="text" maxlength="3" value="7">)");
}

TEST(Rangebox, PrintsTheValueBehindTheFlags) {
  const uint32_t five = 5, same = 5, seven = 7;
  const std::tuple<const uint32_t*, const uint32_t*, const char*, std::string> cases[] = {
      {&five, &seven, "<5>", "&lt;5&gt;"}, {&five, &seven, nullptr, "5-7"},
      {&five, &same, nullptr, "5"},        {&five, nullptr, nullptr, "5"},
      {nullptr, &seven, nullptr, "-7"},    {nullptr, nullptr, nullptr, "-"}};
  for (const auto& [first, last, text, expected] : cases) {
    EXPECT_EQ(test::printed([&, first = first, last = last, text = text] {
                EXPECT_EQ(gen_xrangebox(9, first, last, text, PF_DISABLED, " x=%s", "<"), '>');
                gen_xrangebox(9, first, last, text, PF_READONLY, nullptr);
              }),
              R"(<input type="text" maxlength="9" x=< disabled value=")" + expected +
                  R"("><input type="text" readonly value=")" + expected + R"(">)");
  }
}

// One row is an item of both kinds of box: its bytes, or null for a missing one, the flag of a
// failed read, PF_CHECKED as it comes out of the word that had it, the number with 42 as default.
TEST(NumberItems, TellFailedReadsByFlag) {
  const std::tuple<const char*, uint32_t, uint32_t, std::string, std::string> cases[] = {
      {"7\n", 0, PF_CHECKED, "7", "\"x\": 7"},
      {"x\n", 0, 0, "0", "\"x\": 0"},
      {"", 0, 0, "42", "\"x\": 42"},
      {nullptr, PF_DISABLED, PF_CHECKED, "42", "\"x\": null"}};
  for (const auto& [stored, failed, checked, expected, json] : cases) {
    const test::TempDir files;
    const char* const dir = files.c_str();
    if (stored != nullptr) files.put("i", stored);
    EXPECT_EQ(rd_checkbox_item(dir, "i", PF_CHECKED | PF_RAW), checked | failed | PF_RAW);
    EXPECT_EQ(rd_checkbox_item(dir, "i", 0), failed != 0 ? failed : checked);
    uint32_t number = 99;
    EXPECT_EQ(rd_numberbox_item(dir, "i", &number, 42), failed);
    EXPECT_EQ(std::to_string(number), expected);
    EXPECT_EQ(rd_numberbox_item(dir, "i", nullptr, 42), failed);
    uint32_t box = 0, first = 0, second = 0;
    EXPECT_EQ(test::printed([&] {
                box = gen_numberbox_item(dir, "i", "x", 5, 42, PF_CHECKED);
                first = gen_json_number_item(dir, "i", "x", 42, 0);
                second = gen_json_number_item(dir, "i", "x", 42, kOff | PF_JSON_MORE);
                EXPECT_EQ(gen_json_number_item(dir, "i", nullptr, 42, 0), 0U);
              }),
              R"(<input type="text" name="x" size="5" maxlength="15" value=")" + expected +
                  (failed != 0 ? "\" checked disabled>" : "\" checked>") + json + ", " + json);
    EXPECT_EQ(box, PF_CHECKED | failed);
    EXPECT_EQ(first, PF_JSON_MORE | failed);
    EXPECT_EQ(second, kOff | PF_JSON_MORE);
  }
}

TEST(NumberItems, AreStoredOnlyOnChange) {
  const test::TempDir dir;
  dir.put("i", "01\n");
  EXPECT_EQ(wr_checkbox_item(dir.c_str(), "i", PF_CHECKED | PF_RAW), 2);
  EXPECT_EQ(dir.get("i"), "1\n");
  EXPECT_EQ(wr_checkbox_item(dir.c_str(), "i", PF_CHECKED), 0);
  EXPECT_EQ(wr_checkbox_item(dir.c_str(), "i", PF_DISABLED), 2);
  EXPECT_EQ(dir.get("i"), "0\n");
  EXPECT_EQ(wr_numberbox_item(dir.c_str(), "i", ~0U), 11);
  EXPECT_EQ(dir.get("i"), "4294967295\n");
  EXPECT_EQ(wr_numberbox_item(dir.c_str(), "i", ~0U), 0);
}

}  // namespace
