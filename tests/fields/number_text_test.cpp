#include <gtest/gtest.h>

#include "tavik.h"

namespace {

using Case = std::tuple<const char*, uint32_t, uint32_t, uint32_t>;

TEST(ScanNumber, LimitsANumberButNotTheDefault) {
  const Case cases[] = {{"15", 10, 20, 15},     {"5", 10, 20, 10},          {"25", 10, 20, 20},
                        {"  12kg", 10, 20, 12}, {"", 10, 20, 99},           {"-1", 0, 20, 99},
                        {"\t15", 10, 20, 99},   {"4294967308", 10, 20, 12}, {"5", 20, 10, 20},
                        {"30", 20, 10, 10},     {nullptr, 0, 9, 77}};
  for (const auto& [text, minimum, maximum, expected] : cases) {
    uint32_t value = 77;
    EXPECT_EQ(scan_number(text, &value, minimum, maximum, 99), expected != 77) << text;
    EXPECT_EQ(value, expected) << text;
    EXPECT_EQ(scan_number(text, &value, minimum, maximum, 99), 0) << text;
  }
}

TEST(ScanSelectNum, PullsIndexAndDefaultIntoTheList) {
  const Case cases[] = {{"  7", 4, 0, 3}, {"2x", 4, 0, 2},         {"", 4, 1, 1},
                        {"x", 4, 9, 3},   {"4294967297", 4, 0, 1}, {"4", 4, 0, 3},
                        {"3", 0, 9, 0},   {"x", 0, 9, 0},          {nullptr, 4, 1, 77}};
  for (const auto& [text, count, fallback, expected] : cases) {
    uint32_t index = 77;
    EXPECT_EQ(scan_select_num(text, &index, count, fallback), expected != 77) << text;
    EXPECT_EQ(index, expected) << text;
    EXPECT_EQ(scan_select_num(text, &index, count, fallback), 0) << text;
  }
}

TEST(ScanUint, StoresANumberAndGoesBehindItsComma) {
  const std::tuple<const char*, uint32_t, const char*> cases[] = {
      {"  12,34", 12, "34"}, {"12", 12, nullptr}, {"12,", 12, ""}, {"12 ,3", 12, nullptr},
      {",1", 7, nullptr},    {"", 7, nullptr},    {"0,1", 0, "1"}, {nullptr, 7, nullptr}};
  for (const auto& [text, expected, rest] : cases) {
    uint32_t value = 7;
    EXPECT_STREQ(scan_uint(text, &value), rest);
    EXPECT_EQ(value, expected) << text;
    EXPECT_STREQ(scan_uint(text, nullptr), rest);
  }
}

TEST(ScanListUint, AddsNumbersAndTellsWhereItEnded) {
  // A list, the numbers taken, and the rest behind "|" unless it is null.
  const std::pair<const char*, std::string> cases[] = {
      {"(1),(4,", "1|(4,"},  {"(4,", "4|"},      {"(),", "|"},      {"(1,2)", "12"},
      {"(1,2", "12|"},       {"(1,2 ", "12"},    {"1,2", ""},       {"(1,x),", "1"},
      {"(1 ,2),", "1"},      {"(1 ),", "1"},     {"(1 2),", "12|"}, {"(1,),", "1|"},
      {" ( 1,2),x", "12|x"}, {"(1,2,3),", "12|"}};
  for (const auto& [text, expected] : cases) {
    uint32_t array[4] = {7, 7, 7, 7}, count = 1;
    const char* const rest = scan_list_uint(text, &count, array, 2);
    std::string taken;
    for (uint32_t i = 1; i < count; ++i) taken += std::to_string(array[i]);
    EXPECT_EQ(rest == nullptr ? taken : taken + "|" + rest, expected) << text;
    EXPECT_EQ(array[0] + array[3], 14U) << text;
  }
  uint32_t word = 0;
  EXPECT_STREQ(scan_list_uint("(1),", nullptr, &word, 1), "(1),");
}

TEST(ScanRange, LimitsOrdersAndFillsIn) {
  const std::tuple<const char*, uint32_t, uint32_t> cases[] = {
      {"5", 5, 5},     {"5-7", 5, 7}, {"5:7", 5, 7}, {" 5 - 7 ", 5, 7}, {"7-5", 5, 7},
      {"5-", 5, 5},    {"5-x", 5, 5}, {"5 7", 5, 5}, {"0-500", 1, 100}, {"500-0", 1, 100},
      {"", 0, 0},      {"x", 0, 0},   {"-", 0, 0},   {" :7", 0, 0},     {"0", 1, 1},
      {"5-7-9", 5, 7}, {"5--7", 5, 5}};
  for (const auto& [text, expected_first, expected_last] : cases) {
    for (const uint32_t held : {expected_first, 200U}) {
      uint32_t first = held, last = 200;
      EXPECT_EQ(scan_range(text, &first, &last, 1, 100, 0), 1) << text;
      EXPECT_EQ(std::pair(first, last), std::pair(expected_first, expected_last)) << text;
      EXPECT_EQ(scan_range(text, &first, &last, 1, 100, 0), 0) << text;
    }
  }
}

// Null arguments change nothing anywhere.
TEST(ScanNumbers, TakeNullArguments) {
  uint32_t word = 9;
  EXPECT_EQ(scan_number("1", nullptr, 0, 9, 8) + scan_select_num("1", nullptr, 4, 1), 0);
  EXPECT_EQ(scan_range(nullptr, &word, &word, 1, 100, 0), 0);
  EXPECT_EQ(scan_range("5", nullptr, &word, 1, 100, 0), 0);
  EXPECT_EQ(scan_range("5", &word, nullptr, 1, 100, 0), 0);
  EXPECT_EQ(scan_time("1", nullptr, &word) + scan_time("1", &word, nullptr), -2);
  EXPECT_EQ(word, 9U);
}

TEST(ScanTime, CarriesMinutesAndWrapsHours) {
  const Case cases[] = {{"25:90", 2, 2, 30},  {"7", 1, 7, 0},    {"7:", 1, 7, 0},
                        {"x", 0, 1, 0},       {"", ~0U, 1, 0},   {"24", 1, 0, 0},
                        {"23:59", 2, 23, 59}, {"23:60", 2, 0, 0}};
  for (const auto& [text, result, expected_hours, expected_minutes] : cases) {
    uint32_t hours = 99, minutes = 99;
    EXPECT_EQ(scan_time(text, &hours, &minutes), static_cast<int32_t>(result)) << text;
    EXPECT_EQ(std::pair(hours, minutes), std::pair(expected_hours, expected_minutes)) << text;
  }
}

TEST(ScanString, ComparesAPrefixInAnyCase) {
  for (const char* text : {"  ONLINE", "oN"}) EXPECT_EQ(scan_string(text, "On"), 1) << text;
  for (const char* text : {"o", "\ton", ""}) EXPECT_EQ(scan_string(text, "on"), 0) << text;
  EXPECT_EQ(scan_string("", ""), 1);
  EXPECT_EQ(scan_string(nullptr, "on") + scan_string("on", nullptr), 0);
}

}  // namespace
