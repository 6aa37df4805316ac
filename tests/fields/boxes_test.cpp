#include <gtest/gtest.h>

#include "support/capture.h"
#include "support/html.h"
#include "support/temp_dir.h"
#include "tavik.h"

namespace {

// One row is an item of both kinds of box: its bytes, or null for a missing one, PF_CHECKED as it
// comes out of the word that had it, the number with 42 as default.
TEST(NumberItems, TellFailedReadsByFlag) {
  const std::tuple<const char*, uint32_t, std::string> cases[] = {
      {"7\n", PF_CHECKED, "7"}, {"x\n", 0, "0"}, {"", 0, "42"}, {nullptr, PF_CHECKED, "42"}};
  for (const auto& [stored, checked, number] : cases) {
    const test::TempDir files;
    const char* const dir = files.c_str();
    if (stored != nullptr) files.put("i", stored);
    const uint32_t failed = stored == nullptr ? PF_DISABLED : 0;
    EXPECT_EQ(rd_checkbox_item(dir, "i", PF_CHECKED | PF_RAW), checked | failed | PF_RAW);
    EXPECT_EQ(rd_checkbox_item(dir, "i", 0), failed != 0 ? failed : checked);
    uint32_t value = 99;
    EXPECT_EQ(rd_numberbox_item(dir, "i", &value, 42), failed);
    EXPECT_EQ(std::to_string(value), number);
    EXPECT_EQ(rd_numberbox_item(dir, "i", nullptr, 42), failed);
    const std::string json = failed != 0 ? "'x': null" : "'x': " + number;
    uint32_t first = 0, second = 0;
    EXPECT_EQ(test::printed([&] {
                EXPECT_EQ(gen_numberbox_item(dir, "i", "x", 5, 42, PF_SUBMIT), PF_SUBMIT | failed);
                EXPECT_EQ(gen_json_number_item(dir, "i", nullptr, 42, 0), 0U);
                first = gen_json_number_item(dir, "i", "x", 42, PF_RAW);
                second = gen_json_number_item(dir, "i", "x", 42, first | PF_DISABLED);
              }),
              test::html("<input type='text' name='x' size='5' maxlength='15' value='" + number +
                         (failed != 0 ? "' disabled>" : "'>") + json + ", " + json));
    EXPECT_EQ(first, PF_RAW | PF_JSON_MORE | failed);
    EXPECT_EQ(second, first | PF_DISABLED);
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
  EXPECT_EQ(checkbox_flags(5, 0) << 8 | checkbox_flags(0, 7) << 4 | checkbox_flags(0, 0), 0x210U);
}

}  // namespace
