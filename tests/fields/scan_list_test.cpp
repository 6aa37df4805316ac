#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tavik.h"

namespace {

// What a result stands for: the text from there on, or "null".
std::string rest(const char* text) {
  return text == nullptr ? "null" : text;
}

TEST(ScanUint, StoresANumberAndGoesBehindItsComma) {
  const struct {
    const char* text;
    uint32_t expected;
    const char* rest;
  } cases[] = {
      {"  12,34", 12, "34"}, {"12", 12, "null"}, {"12,", 12, ""},     {"12 ,3", 12, "null"},
      {"x", 7, "null"},      {"", 7, "null"},    {",1", 7, "null"},   {nullptr, 7, "null"},
      {"-1,2", 7, "null"},   {"0,1", 0, "1"},    {"\t1,", 7, "null"}, {"4294967296,1", 0, "1"},
  };
  for (const auto& c : cases) {
    uint32_t value = 7;
    EXPECT_EQ(rest(scan_uint(c.text, &value)), c.rest);
    EXPECT_EQ(value, c.expected) << c.rest;
    EXPECT_EQ(rest(scan_uint(c.text, nullptr)), c.rest);
  }
}

TEST(ScanListUint, StoresNumbersAndTellsWhereItEnded) {
  const struct {
    const char* text;
    std::vector<uint32_t> expected;
    const char* rest;
  } cases[] = {
      {"(1,2,3),(4,", {1, 2, 3}, "(4,"},
      {"(4,", {4}, ""},
      {"(),", {}, ""},
      {"(", {}, ""},
      {"", {}, "null"},
      {"()", {}, "null"},
      {"(1,2)", {1, 2}, "null"},
      {"(1,2) ,", {1, 2}, "null"},
      {"(1,2", {1, 2}, ""},
      {"(1,2 ", {1, 2}, "null"},
      {"1,2", {}, "null"},
      {"(1,x),", {1}, "null"},
      {"(1 ,2),", {1}, "null"},
      {"(1 ),", {1}, "null"},
      {"(1 2),", {1, 2}, ""},
      {"(1,),", {1}, ""},
      {"(,1),", {}, "null"},
      {"  ( 1, 2),x", {1, 2}, "x"},
      {"(1,2,3,4,5),", {1, 2, 3, 4}, ""},
  };
  for (const auto& c : cases) {
    uint32_t array[6] = {70, 71, 72, 73, 74, 75};
    uint32_t count = 1;
    EXPECT_EQ(rest(scan_list_uint(c.text, &count, array, 4)), c.rest) << c.text;
    EXPECT_EQ(std::vector<uint32_t>(array + 1, array + count), c.expected) << c.text;
    EXPECT_EQ(array[0], 70U);
    for (uint32_t i = count; i < 6; ++i) EXPECT_EQ(array[i], 70 + i) << c.text;
  }
  uint32_t word = 0;
  EXPECT_STREQ(scan_list_uint("(1),", nullptr, &word, 1), "(1),");
  EXPECT_STREQ(scan_list_uint("(1),", &word, nullptr, 1), "(1),");
  EXPECT_EQ(scan_list_uint(nullptr, &word, &word, 1), nullptr);
}

}  // namespace
