#include <gtest/gtest.h>

#include "support/temp_dir.h"
#include "tavik.h"

namespace {

void expect(const std::string& text, uint32_t maximum, textbox_filter filter, uint32_t rejected,
            int32_t result, const char* stored) {
  const test::TempDir dir;
  dir.put("item", "old\n");
  uint32_t count = 99;
  EXPECT_EQ(result,
            update_password_item(dir.c_str(), "item", text.c_str(), maximum, filter, &count));
  EXPECT_EQ(rejected, count);
  EXPECT_EQ(stored, dir.get("item"));
}

TEST(UpdatePasswordItem, StoresOnlyWhatWasEnteredAnew) {
  expect("new", 8, textbox_filter_alnum, 0, 4, "new\n");
  expect("\u2022\u2022", 8, textbox_filter_alnum, 0, 0, "old\n");
  expect("new\u2022", 8, textbox_filter_alnum, 0, 0, "old\n");
  expect("n-e-w\u2022", 8, textbox_filter_alnum, 2, 0, "old\n");
  expect("-", 8, nullptr, 0, 2, "-\n");
  expect("n\377ew\303", 8, textbox_filter_alnum, 0, 4, "new\n");
  expect("new-\u2022", 3, textbox_filter_alnum, 0, 4, "new\n");
  expect(" new", 8, textbox_filter_octet, 1, 0, "old\n");
  expect("", 8, textbox_filter_alnum, 0, 1, "\n");
  expect("\337\377", 8, nullptr, 0, 0, "old\n");  // becomes longer than it came
  expect(std::string(64 << 20, 'x'), 2, nullptr, 0, 3, "xx\n");
  EXPECT_EQ(0, update_password_item("none", "none", "\u2022", 8, nullptr, nullptr));
}

}  // namespace
