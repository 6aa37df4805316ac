#include <gtest/gtest.h>

#include <cerrno>
#include <cstdlib>

#include "support/temp_dir.h"
#include "tavik.h"

namespace {

#define EURO "\xE2\x82\xAC"

std::string load(const test::TempDir& dir, const char* name, uint32_t maximum) {
  char* text = nullptr;
  const int32_t result = get_textarea_file(&text, dir.c_str(), name, maximum);
  const std::string shown = text == nullptr ? "" : std::string(":") + text;
  free(text);
  return std::to_string(result) + shown;
}

TEST(TextareaToUnix, DropsEveryCr) {
  const char* const cases[][2] = {{"a\r\nb\rc", "a\nbc"}, {"", ""}, {"\r\r", ""}, {"a\r", "a"}};
  for (const auto& [text, expected] : cases) {
    std::string in_place = text;
    char other[16] = "###############";
    textarea_to_unix(in_place.data(), in_place.data());
    textarea_to_unix(other, text);
    textarea_to_unix(other, nullptr);
    EXPECT_STREQ(in_place.c_str(), expected);
    EXPECT_STREQ(other, expected);
  }
}

TEST(TextareaFile, LoadsUpToTheMaximumInCharacters) {
  const test::TempDir dir;
  const struct {
    std::string stored;
    uint32_t maximum;
    const char* expected;
  } cases[] = {{"a\r\n\x7F\n", 9, "28:a\r\n\x7F\n"},
               {EURO EURO EURO, 2, "7:" EURO EURO},
               {"abc", 0, "1:"},
               {"", 5, "16:"},
               {{"ab\0cd", 5}, 9, "28:ab"},
               {"a\xFFzz", 9, "28:a\xFF"},
               {"abcdefg" EURO, 3, "10:abc"}};
  for (const auto& c : cases) {
    dir.put("text", c.stored);
    EXPECT_EQ(load(dir, "text", c.maximum), c.expected);
    EXPECT_EQ(dir.get("text"), c.stored);
  }
}

TEST(TextareaFile, HandsOutAnEmptyTextWithoutAFile) {
  const test::TempDir dir;
  dir.put("text", "abc");
  EXPECT_EQ(load(dir, "missing", 5), "0:");
  EXPECT_EQ(load(dir, "text", INT32_MAX / 3 + 1), "-1") << "the size would pass 31 bits";
  EXPECT_EQ(load(dir, "text", 0x55555556), "-1");
  EXPECT_EQ(load(dir, nullptr, 5), "-1");
  EXPECT_EQ(get_textarea_file(nullptr, dir.c_str(), "text", 5), -1);
}

TEST(TextareaFile, StoresOnlyAChange) {
  const test::TempDir dir;
  const struct {
    const char *stored, *text;
    uint32_t maximum;
    int32_t result;
    const char* expected;
  } cases[] = {{"a\nb\n", "a\nb\n", 9, 0, "a\nb\n"},
               {"old", "a\r\nb", 9, 5, "a\r\nb"},
               {"old", "", 9, 1, ""},
               {"", "", 9, 0, ""},
               {"abc", "ab", 9, 3, "ab"},
               {"abc", "abcd", 3, 4, "abc"},
               {"old", EURO EURO EURO, 2, 7, EURO EURO},
               {"old", "a\xFFzz", 9, 3, "a\xFF"},
               {"abcdefghi", "abcdef", 2, 0, "abcdefghi"},
               {"abc", "abcd", 1, 2, "a"},
               {"old", "new", 0, 1, ""}};
  for (const auto& c : cases) {
    dir.put("text", c.stored);
    dir.age("text");
    EXPECT_EQ(update_textarea_file(dir.c_str(), "text", c.text, c.maximum), c.result) << c.text;
    EXPECT_EQ(dir.get("text"), c.expected);
    EXPECT_EQ(dir.touched("text"), c.result != 0) << c.text;
  }
}

TEST(TextareaFile, TellsAFailureToStore) {
  const test::TempDir dir;
  EXPECT_EQ(update_textarea_file(dir.c_str(), "text", "a", 5), -1);
  EXPECT_EQ(dir.get("text"), std::nullopt);
  dir.put("text", "old");
  EXPECT_EQ(update_textarea_file(dir.c_str(), "text", nullptr, 5), -1);
  EXPECT_EQ(update_textarea_file(dir.c_str(), "text", "a", 0x55555556), -2);
  EXPECT_EQ(dir.get("text"), "old");
}

}  // namespace
