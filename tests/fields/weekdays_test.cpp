#include <gtest/gtest.h>

#include "tavik.h"

namespace {

// The first three entries as text; "-" for one left untouched.
std::string table_of(uint32_t capacity, const char* list) {
  dow_entry table[3] = {};
  gen_dow_table(table, capacity, list);
  std::string text;
  for (const auto& [day, name, label] : table) {
    text += name == nullptr ? "-" : std::to_string(day) + name + label + " ";
  }
  return text;
}

TEST(Weekdays, FillATableInTheListsOrder) {
  EXPECT_EQ(table_of(3, "1Mo\0006Sa\0000\0"), "1monMo 6satSa 0sun ");
  EXPECT_EQ(table_of(2, "2a\0003b\0004c\0"), "2tuea 3wedb -");
  EXPECT_EQ(table_of(2, "7x\0005a\0004b\0"), "-5fria -") << "a skipped entry counts";
  EXPECT_EQ(table_of(3, "4a\0x\0002b\0"), "4thua --");
  EXPECT_EQ(table_of(0, "1a\0") + table_of(3, "") + table_of(3, nullptr), "---------");
  gen_dow_table(nullptr, 8, "1a\0");
}

TEST(Weekdays, MakeTheDayFieldOfACronLine) {
  const std::pair<uint32_t, const char*> cases[] = {
      {0x2A, "1,3,5"}, {0x7F, "*"}, {0xFF, "*"}, {0x80, ""}, {0x3F, "0,1,2,3,4,5"}, {0x40, "6"}};
  for (const auto& [mask, expected] : cases) {
    char buffer[15] = "untouched";
    EXPECT_STREQ(cron_weekdays(buffer, 14, mask), "*");
    EXPECT_STREQ(buffer, "untouched");
    EXPECT_EQ(cron_weekdays(buffer, 15, mask), buffer);
    EXPECT_STREQ(buffer, expected);
  }
  EXPECT_STREQ(cron_weekdays(nullptr, 99, 1), "*");
}

}  // namespace
