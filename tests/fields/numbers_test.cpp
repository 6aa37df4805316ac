#include <gtest/gtest.h>

#include "fields/scan.h"
#include "tavik.h"

namespace {

using test::expect_rows;
using test::joined;
using test::scan;

struct Range {
  uint32_t first, last;
};
std::ostream& operator<<(std::ostream& out, const Range& range) {
  return out << range.first << '-' << range.last;
}
int32_t scan_in_range(const char* text, Range* held) {
  uint32_t last = 0;
  if (held == nullptr) return scan_range(text, nullptr, &last, 1, 100, 0);
  EXPECT_EQ(scan_range(text, &held->first, nullptr, 1, 100, 0), 0);
  return scan_range(text, &held->first, &held->last, 1, 100, 0);
}

TEST(Numbers, AreBroughtIntoTheirLimits) {
  expect_rows("15=15|5=10|25=20|  12kg=12|=99|-1=99|\t15=99|4294967308=12",
              scan(77U, scan_number, 10, 20, 99));
  expect_rows("5=20|30=10", scan(77U, scan_number, 20, 10, 99));
  expect_rows("  7=3|2x=2|=1|4294967297=1|4=3", scan(77U, scan_select_num, 4, 1));
  expect_rows("x=3", scan(77U, scan_select_num, 4, 9));
  expect_rows("3=0|x=0", scan(77U, scan_select_num, 0, 9));
}

TEST(Numbers, AreRangesAndTimes) {
  expect_rows(
      "5=5-5|5-7=5-7|5:7=5-7| 5 - 7 =5-7|7-5=5-7|5-=5-5|5-x=5-5|5 7=5-5|0-500=1-100|500-0=1-100|"
      "=0-0|x=0-0|-=0-0| :7=0-0|0=1-1|5-7-9=5-7|5--7=5-5",
      scan(Range{200, 200}, scan_in_range));
  expect_rows("5-200=5-100", scan(Range{5, 200}, scan_in_range));
  expect_rows("25:90=2 2 30|7=1 7 0|7:=1 7 0|x=0 1 0|=-1 1 0|24=1 0 0|23:59=2 23 59|23:60=2 0 0",
              [](const char* text) {
                uint32_t hours = 99, minutes = 99;
                const int32_t found = scan_time(text, &hours, &minutes);
                EXPECT_EQ(scan_time(text, &hours, nullptr) + scan_time(text, nullptr, &hours), -2);
                return joined(found, hours, minutes);
              });
}

TEST(Numbers, AreTakenOffALineAndAList) {
  expect_rows("  12,34=12>34|12=12|12,=12>|12 ,3=12|,1=7|=7|0,1=0>1", [](const char* text) {
    uint32_t value = 7;
    const char* const rest = scan_uint(text, &value);
    EXPECT_EQ(scan_uint(text, nullptr), rest);
    return std::to_string(value) + (rest == nullptr ? "" : std::string(">") + rest);
  });
  EXPECT_EQ(scan_uint(nullptr, nullptr), nullptr);
  // The array of numbers begins with a 7, and has room for two more.
  expect_rows(
      "(1),(4,=71>(4,|(4,=74>|(),=7>|(1,2)=712|(1,2=712>|(1,2 =712|1,2=7|(1,x),=71|(1 ,2),=71|"
      "(1 ),=71|(1 2),=712>|(1,),=71>| ( 1,2),x=712>x|(1,2,3),=712>",
      [](const char* text) {
        uint32_t array[4] = {7, 7, 7, 7}, count = 1;
        const char* const rest = scan_list_uint(text, &count, array, 2);
        std::string taken = array[3] == 7 ? "" : "too many: ";
        for (uint32_t i = 0; i < count; ++i) taken += std::to_string(array[i]);
        EXPECT_EQ(scan_list_uint(text, nullptr, array, 2), text);
        return rest == nullptr ? taken : taken + ">" + rest;
      });
}

TEST(Words, AreComparedAsPrefixesInAnyCase) {
  expect_rows("  ONLINE=1|oN=1|o=0|\ton=0|=0", [](auto text) { return scan_string(text, "On"); });
  EXPECT_EQ(scan_string("", "") + scan_string(nullptr, "on") + scan_string("on", nullptr), 1);
}

TEST(Weekdays, FillATableAndACronLine) {
  const auto table_of = [](uint32_t capacity, const char* list) {
    dow_entry table[3] = {};
    gen_dow_table(table, capacity, list);
    std::string text;
    for (const auto& [day, name, label] : table) {
      text += name == nullptr ? "-" : std::to_string(day) + name + label + " ";
    }
    return text;
  };
  EXPECT_EQ(table_of(3, "1Mo\0006Sa\0000\0"), "1monMo 6satSa 0sun ");
  EXPECT_EQ(table_of(2, "7x\0005a\0004b\0"), "-5fria -") << "a skipped entry counts";
  EXPECT_EQ(table_of(3, "4a\0x\0002b\0") + table_of(3, nullptr), "4thua -----");
  gen_dow_table(nullptr, 8, "2a\0");
  expect_rows("42=1,3,5|127=*|255=*|128=|63=0,1,2,3,4,5|64=6", [](const char* mask) {
    char buffer[15] = "untouched";
    EXPECT_STREQ(cron_weekdays(buffer, 14, str_to_uint(mask)), "*");
    EXPECT_STREQ(buffer, "untouched");
    return std::string(cron_weekdays(buffer, 15, str_to_uint(mask)));
  });
  EXPECT_STREQ(cron_weekdays(nullptr, 99, 1), "*");
}

}  // namespace
