#include <gtest/gtest.h>

#include "tavik.h"

namespace {

TEST(ScanRange, LimitsOrdersAndFillsIn) {
  const struct {
    const char* text;
    uint32_t first, last;
  } cases[] = {
      {"5", 5, 5},           {"5-7", 5, 7},     {"5:7", 5, 7},   {" 5 - 7 ", 5, 7},
      {"7-5", 5, 7},         {"5-", 5, 5},      {"5-x", 5, 5},   {"5 7", 5, 5},
      {"0-500", 1, 100},     {"500-0", 1, 100}, {"", 0, 0},      {"x", 0, 0},
      {"-", 0, 0},           {"-7", 0, 0},      {" :7", 0, 0},   {"0", 1, 1},
      {"100-100", 100, 100}, {"5--7", 5, 5},    {"5-7-9", 5, 7}, {"4294967301-4294967303", 5, 7},
  };
  for (const auto& c : cases) {
    uint32_t first = 200, last = c.last;
    EXPECT_EQ(scan_range(c.text, &first, &last, 1, 100, 0), 1) << c.text;
    EXPECT_EQ(first, c.first) << c.text;
    EXPECT_EQ(last, c.last) << c.text;
    EXPECT_EQ(scan_range(c.text, &first, &last, 1, 100, 0), 0) << c.text;
    last = 200;
    EXPECT_EQ(scan_range(c.text, &first, &last, 1, 100, 0), 1) << c.text;
    EXPECT_EQ(last, c.last) << c.text;
  }
  uint32_t word = 9;
  EXPECT_EQ(scan_range(nullptr, &word, &word, 1, 100, 0), 0);
  EXPECT_EQ(scan_range("5", nullptr, &word, 1, 100, 0), 0);
  EXPECT_EQ(scan_range("5", &word, nullptr, 1, 100, 0), 0);
  EXPECT_EQ(word, 9U);
}

TEST(ScanString, ComparesAPrefixInAnyCase) {
  const struct {
    const char *text, *word;
    int32_t expected;
  } cases[] = {
      {"  ONLINE", "on", 1}, {"on", "ON", 1},   {"o", "on", 0},     {"off", "on", 0},   {"", "", 1},
      {"x", "", 1},          {"\ton", "on", 0}, {nullptr, "on", 0}, {"on", nullptr, 0},
  };
  for (const auto& c : cases) EXPECT_EQ(scan_string(c.text, c.word), c.expected);
}

TEST(ScanTime, CarriesMinutesAndWrapsHours) {
  const struct {
    const char* text;
    int32_t result;
    uint32_t hours, minutes;
  } cases[] = {
      {"25:90", 2, 2, 30},
      {"7", 1, 7, 0},
      {"7:", 1, 7, 0},
      {"x", 0, 1, 0},
      {"", -1, 1, 0},
      {"23:59", 2, 23, 59},
      {"23:60", 2, 0, 0},
      {"24", 1, 0, 0},
      {"7;30", 1, 7, 0},
      {"4294967295:60", 2, 0, 0},
      {"0:4294967295", 2, 71582788 % 24, 15},
  };
  for (const auto& c : cases) {
    uint32_t hours = 99, minutes = 99;
    EXPECT_EQ(scan_time(c.text, &hours, &minutes), c.result) << c.text;
    EXPECT_EQ(hours, c.hours) << c.text;
    EXPECT_EQ(minutes, c.minutes) << c.text;
  }
  uint32_t word = 9;
  EXPECT_EQ(scan_time("1", nullptr, &word), -1);
  EXPECT_EQ(scan_time("1", &word, nullptr), -1);
  EXPECT_EQ(word, 9U);
}

}  // namespace
