#include <gtest/gtest.h>
#include <unistd.h>

#include <cerrno>

#include "support/temp_dir.h"
#include "tavik.h"

namespace {

using test::TempDir;

TEST(CreateItem, WritesTheValueAndOneLineFeed) {
  const struct {
    const char* value;
    int32_t size, result;
    const char* file;
  } cases[] = {
      {"abcdef", 6, 7, "abcdef\n"},   {"abcdef", 100, 7, "abcdef\n"}, {"abcdef", 4, 5, "abcd\n"},
      {"abcdef", 0, 1, "\n"},         {"abcdef", -2, 1, "\n"},        {"", 9, 1, "\n"},
      {"a\tb\nc", 5, 6, "a\tb\nc\n"}, {"\xC3\xA9", 1, 2, "\xC3\n"},
  };
  for (const auto& c : cases) {
    const TempDir dir;
    EXPECT_EQ(create_item(dir.c_str(), "new", c.value, c.size), c.result);
    EXPECT_EQ(dir.get("new"), c.file);
    dir.put("old", "something longer than the value\nand more\n");
    EXPECT_EQ(create_item(dir.c_str(), "old", c.value, c.size), c.result);
    EXPECT_EQ(dir.get("old"), c.file);
  }
}

TEST(CreateItem, NumbersJoinedTextsAndFailures) {
  const TempDir dir;
  const mode_t saved = umask(027);
  EXPECT_EQ(create_item_uint(dir.c_str(), "n", UINT32_MAX), 11);
  umask(saved);
  struct stat status {};
  EXPECT_EQ(stat(dir.path("n").c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 07777, 0640U);
  EXPECT_EQ(dir.get("n"), "4294967295\n");
  EXPECT_EQ(create_concat_item(dir.c_str(), "joined", "abc", "def"), 7);
  EXPECT_EQ(dir.get("joined"), "abcdef\n");
  EXPECT_EQ(create_concat_item(dir.c_str(), "joined", "", ""), 1);
  EXPECT_EQ(create_concat_item(dir.c_str(), "none", nullptr, "b"), -1);
  EXPECT_EQ(create_concat_item(dir.c_str(), "none", "a", nullptr), -1);
  EXPECT_EQ(dir.get("none"), std::nullopt);
  EXPECT_EQ(create_item(nullptr, "n", "v", 1), -1);
  EXPECT_EQ(create_item(dir.c_str(), "no/folder", "v", 1), -1);
  EXPECT_EQ(create_item(dir.c_str(), "", "v", 1), -1);
}

TEST(UpdateItem, RewritesOnlyWhatDiffers) {
  const struct {
    std::string file;
    const char* value;
    int32_t size, compared, updated;
    const char* after;
  } cases[] = {
      {"abc\n", "abc", 10, 0, 0, "abc\n"},
      {"abc", "abc", 3, 0, 0, "abc"},
      {"abc\r\nmore", "abc", 10, 0, 0, "abc\r\nmore"},
      {"abc\n", "abd", 10, 1, 4, "abd\n"},
      {"abc\n", "abcd", 10, 1, 5, "abcd\n"},
      {"abcd\n", "abc", 10, 1, 4, "abc\n"},
      {"abcdef\n", "abcde", 5, 0, 0, "abcdef\n"},
      {"abcdef\n", "abcde", 6, 1, 6, "abcde\n"},
      {"abcd\n", "abcdef", 4, 0, 0, "abcd\n"},
      {"x\n", "abcdef", 4, 1, 5, "abcd\n"},
      {"abc\n", "", 10, 1, 1, "\n"},
      {"", "", 10, 0, 0, ""},
      {"\n", "", 10, 0, 0, "\n"},
      {"abc\n", "xyz", 0, 0, 0, "abc\n"},
      {"abc\n", "xyz", -1, 0, 0, "abc\n"},
      {"a\tb\n", "a\tb", 10, 1, 4, "a\tb\n"},
      {"abc\n", "ABC", 0x7FFFFFFF, 1, 4, "ABC\n"},
  };
  const TempDir dir;
  for (const auto& c : cases) {
    dir.put("item", c.file);
    dir.age("item");
    EXPECT_EQ(compare_item(dir.c_str(), "item", c.value, c.size), c.compared) << c.file;
    EXPECT_FALSE(dir.touched("item"));
    EXPECT_EQ(update_item(dir.c_str(), "item", c.value, c.size), c.updated) << c.file;
    EXPECT_EQ(dir.touched("item"), c.updated != 0) << c.file;
    EXPECT_EQ(dir.get("item"), c.after);
  }
}

TEST(UpdateItem, FailuresCreateNothing) {
  const TempDir dir;
  EXPECT_EQ(update_item(dir.c_str(), "missing", "v", 1), -1);
  EXPECT_EQ(compare_item(dir.c_str(), "missing", "v", 1), -1);
  EXPECT_EQ(update_item_uint(dir.c_str(), "missing", 1), -1);
  EXPECT_EQ(write_item_uint(dir.c_str(), "missing", 1), -1);
  EXPECT_EQ(write_item_text(dir.c_str(), "missing", nullptr), -1);
  EXPECT_EQ(update_item(nullptr, "missing", "v", 1), -1);
  EXPECT_EQ(compare_item(dir.c_str(), nullptr, "v", 1), -1);
  EXPECT_EQ(dir.get("missing"), std::nullopt);
  EXPECT_EQ(update_item(dir.c_str(), "", "v", 1), -1) << "the read of a directory fails";
}

TEST(WriteItem, WritesWithoutComparing) {
  const TempDir dir;
  dir.put("n", "0\n");
  dir.age("n");
  EXPECT_EQ(update_item_uint(dir.c_str(), "n", 0), 0);
  EXPECT_FALSE(dir.touched("n"));
  EXPECT_EQ(update_item_uint(dir.c_str(), "n", 12), 3);
  dir.age("n");
  EXPECT_EQ(write_item_uint(dir.c_str(), "n", 12), 3);
  EXPECT_TRUE(dir.touched("n"));
  EXPECT_EQ(write_item_uint(dir.c_str(), "n", UINT32_MAX), 11);
  EXPECT_EQ(dir.get("n"), "4294967295\n");
  EXPECT_EQ(write_item_text(dir.c_str(), "n", "some text"), 10);
  EXPECT_EQ(dir.get("n"), "some text\n");
  EXPECT_EQ(write_item_text(dir.c_str(), "n", nullptr), 1);
  EXPECT_EQ(dir.get("n"), "\n");
}

}  // namespace
