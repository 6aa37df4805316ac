#include <gtest/gtest.h>

#include "tavik.h"

namespace {

TEST(ScanNumber, LimitsANumberButNotTheDefault) {
  const struct {
    const char* text;
    uint32_t minimum, maximum, expected;
  } cases[] = {
      {"15", 10, 20, 15},          {"5", 10, 20, 10},      {"25", 10, 20, 20},
      {"20", 10, 20, 20},          {"  12kg", 10, 20, 12}, {"", 10, 20, 99},
      {"-15", 10, 20, 99},         {"\t15", 10, 20, 99},   {"4294967308", 10, 20, 12},
      {"4294967295", 0, ~0U, ~0U}, {"5", 20, 10, 20},      {"30", 20, 10, 10},
  };
  for (const auto& c : cases) {
    uint32_t value = 7;
    EXPECT_EQ(scan_number(c.text, &value, c.minimum, c.maximum, 99), 1) << c.text;
    EXPECT_EQ(value, c.expected) << c.text;
    EXPECT_EQ(scan_number(c.text, &value, c.minimum, c.maximum, 99), 0) << c.text;
    EXPECT_EQ(value, c.expected) << c.text;
  }
  uint32_t value = 7;
  EXPECT_EQ(scan_number(nullptr, &value, 0, 9, 8), 0);
  EXPECT_EQ(value, 7U);
  EXPECT_EQ(scan_number("1", nullptr, 0, 9, 8), 0);
}

TEST(ScanSelectNum, PullsIndexAndDefaultIntoTheList) {
  const struct {
    const char* text;
    uint32_t count, fallback, expected;
  } cases[] = {
      {"  7", 4, 0, 3}, {"2x", 4, 0, 2},         {"", 4, 1, 1},  {"x", 4, 2, 2},
      {"x", 4, 9, 3},   {"4294967297", 4, 0, 1}, {"3", 0, 9, 0}, {"x", 0, 9, 0},
  };
  for (const auto& c : cases) {
    uint32_t value = 77;
    EXPECT_EQ(scan_select_num(c.text, &value, c.count, c.fallback), 1) << c.text;
    EXPECT_EQ(value, c.expected) << c.text;
    EXPECT_EQ(scan_select_num(c.text, &value, c.count, c.fallback), 0) << c.text;
  }
  uint32_t value = 77;
  EXPECT_EQ(scan_select_num(nullptr, &value, 4, 1), 0);
  EXPECT_EQ(value, 77U);
  EXPECT_EQ(scan_select_num("1", nullptr, 4, 1), 0);
}

}  // namespace
