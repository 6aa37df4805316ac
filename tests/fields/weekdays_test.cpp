#include <gtest/gtest.h>

#include "tavik.h"

namespace {

// The table as text, one entry behind the other; "-" for an entry left untouched.
std::string table_of(uint32_t capacity, const char* list) {
  dow_entry table[8] = {};
  gen_dow_table(table, capacity, list);
  std::string text;
  for (const dow_entry& entry : table) {
    text += entry.name == nullptr
                ? "-"
                : std::to_string(entry.day) + entry.name + "=" + entry.label + " ";
  }
  return text;
}

TEST(GenDowTable, FillsEntriesInTheListsOrder) {
  const char week[] =
      "1Mo\0"
      "2Tu\0"
      "3We\0"
      "4Th\0"
      "5Fr\0"
      "6Sa\0"
      "0Su\0";
  EXPECT_EQ(table_of(8, week), "1mon=Mo 2tue=Tu 3wed=We 4thu=Th 5fri=Fr 6sat=Sa 0sun=Su -");
  EXPECT_EQ(table_of(2, week), "1mon=Mo 2tue=Tu ------");
  EXPECT_EQ(table_of(0, week), "--------");
  EXPECT_EQ(table_of(8, ""), "--------");
  EXPECT_EQ(table_of(8, nullptr), "--------");
  EXPECT_EQ(table_of(8,
                     "7x\0"
                     "3\0"
                     "9y\0"
                     "4Thu\0"),
            "-3wed= -4thu=Thu ----");
  EXPECT_EQ(table_of(8,
                     "1a\0"
                     "x\0"
                     "2b\0"),
            "1mon=a -------");
  EXPECT_EQ(table_of(2,
                     "8x\0"
                     "1a\0"
                     "2b\0"),
            "-1mon=a ------")
      << "a skipped entry counts";
  gen_dow_table(nullptr, 8, week);
}

TEST(CronWeekdays, WritesTheDayField) {
  const struct {
    uint32_t mask;
    const char* expected;
  } cases[] = {{0x2A, "1,3,5"}, {0x7F, "*"},   {0xFF, "*"},           {0x80, ""},
               {0, ""},         {0x41, "0,6"}, {0x7E, "1,2,3,4,5,6"}, {0xC0, "6"}};
  for (const auto& c : cases) {
    char buffer[15] = "untouched";
    EXPECT_EQ(cron_weekdays(buffer, sizeof buffer, c.mask), buffer);
    EXPECT_STREQ(buffer, c.expected);
  }
  char small[14] = "untouched";
  EXPECT_STREQ(cron_weekdays(small, sizeof small, 0), "*");
  EXPECT_STREQ(small, "untouched");
  EXPECT_STREQ(cron_weekdays(nullptr, 99, 1), "*");
}

}  // namespace
