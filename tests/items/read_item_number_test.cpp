#include <gtest/gtest.h>

#include "support/temp_dir.h"
#include "tavik.h"

namespace {

using test::TempDir;

TEST(ReadItemNumber, ConvertsTextAndTellsItsLength) {
  const struct {
    const char* text;
    int32_t length;
    uint32_t as_unsigned;
    int32_t as_null_form, as_signed;
  } cases[] = {
      {"007", 3, 7, 7, 7},
      {"12abc", 5, 12, 12, 12},
      {"abc", 3, 0, 0, 0},
      {" 5", 2, 0, 0, 0},
      {"0", 1, 0, 0, 0},
      {"-5", 2, 0, 0, -5},
      {"+5", 2, 0, 0, 0},
      {"-", 1, 0, 0, 0},
      {"--5", 3, 0, 0, 0},
      {"2147483647", 10, 2147483647, 2147483647, 2147483647},
      {"2147483648", 10, 2147483648U, 2147483647, INT32_MIN},
      {"-2147483648", 11, 0, 0, INT32_MIN},
      {"4294967295", 10, UINT32_MAX, 2147483647, -1},
      {"4294967296", 10, 0, 0, 0},
      {"4294967299", 10, 3, 3, 3},
      {"10000000000000012345", 15, 276447232, 276447232, 276447232},
      {"", 0, 77, 0, 77},
  };
  const TempDir dir;
  for (const auto& c : cases) {
    dir.put("n", std::string(c.text) + "\n");
    uint32_t number = 77;
    EXPECT_EQ(read_item_uint(dir.c_str(), "n", &number), c.length) << c.text;
    EXPECT_EQ(number, c.as_unsigned) << c.text;
    EXPECT_EQ(read_item_uint(dir.c_str(), "n", nullptr), c.as_null_form) << c.text;
    int32_t signed_number = 77;
    EXPECT_EQ(read_item_sint(dir.c_str(), "n", &signed_number), c.length) << c.text;
    EXPECT_EQ(signed_number, c.as_signed) << c.text;
    EXPECT_EQ(read_item_sint(dir.c_str(), "n", nullptr), c.length) << c.text;
    number = 77;
    EXPECT_EQ(read_item_uint_fmt(&number, "%s/%c", dir.c_str(), 'n'), c.length);
    EXPECT_EQ(number, c.as_unsigned) << c.text;
  }
}

int32_t doubled(uint32_t value) {
  return static_cast<int32_t>(value * 2);
}

TEST(ReadItemNumber, FailuresLeaveTheResult) {
  const TempDir dir;
  dir.put("empty", "");
  dir.put("n", "21\n");
  uint32_t number = 77;
  int32_t signed_number = 77;
  EXPECT_EQ(read_item_uint_fd(-4, &number), -4);
  EXPECT_EQ(read_item_sint_fd(-4, &signed_number), -4);
  EXPECT_EQ(read_item_uint(dir.c_str(), "missing", &number), -1);
  EXPECT_EQ(read_item_sint(dir.c_str(), "missing", &signed_number), -1);
  EXPECT_EQ(read_item_uint_fmt(&number, "%s", ""), -1);
  EXPECT_EQ(read_item_uint_fmt(&number, "%s/missing", dir.c_str()), -1);
  EXPECT_EQ(number, 77U);
  EXPECT_EQ(signed_number, 77);
  EXPECT_EQ(call_uint(dir.c_str(), "n", doubled), 42);
  EXPECT_EQ(call_uint(dir.c_str(), "empty", doubled), -2) << "UINT32_MAX doubled";
  EXPECT_EQ(call_uint(dir.c_str(), "missing", doubled), -1);
  EXPECT_EQ(call_uint(dir.c_str(), "n", nullptr), -2);
}

TEST(StrToNumber, TruthValues) {
  const struct {
    const char* text;
    uint32_t value;
  } cases[] = {{"TRUE", 1}, {"true", 1}, {"False", 0}, {"2", 1},          {"0", 0},
               {"yes", 0},  {"", 0},     {"true ", 0}, {"4294967296", 0}, {nullptr, 0}};
  for (const auto& c : cases) EXPECT_EQ(bool_to_uint(c.text), c.value);
  EXPECT_EQ(str_to_uint(nullptr), 0U);
  EXPECT_EQ(str_to_sint(nullptr), 0);
}

}  // namespace
