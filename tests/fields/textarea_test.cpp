#include <gtest/gtest.h>

#include <cstdlib>

#include "support/temp_dir.h"
#include "tavik.h"

namespace {

std::string load(const test::TempDir& dir, uint32_t maximum, const char* name = "text") {
  char* text = nullptr;
  const int32_t result = get_textarea_file(&text, dir.c_str(), name, maximum);
  const std::string shown = text == nullptr ? "" : std::string(":") + text;
  free(text);
  return std::to_string(result) + shown;
}

TEST(TextareaToUnix, DropsEveryCr) {
  char text[] = "a\r\nb\r\rc\r", other[3] = "##";
  textarea_to_unix(text, text);
  EXPECT_STREQ(text, "a\nbc");
  textarea_to_unix(other, nullptr);
  EXPECT_STREQ(other, "##");
  textarea_to_unix(other, "\r");
  EXPECT_STREQ(other, "");
}

TEST(TextareaFile, LoadsUpToTheMaximumInCharacters) {
  const test::TempDir dir;
  const std::tuple<std::string, uint32_t, const char*> cases[] = {{"\r\n\x7F", 9, "28:\r\n\x7F"},
                                                                  {"\u20AC\u20AC", 1, "4:\u20AC"},
                                                                  {"abc", 0, "1:"},
                                                                  {{"ab\0cd", 5}, 9, "28:ab"},
                                                                  {"a\xFFzz", 9, "28:a\xFF"}};
  for (const auto& [stored, maximum, expected] : cases) {
    dir.put("text", stored);
    EXPECT_EQ(load(dir, maximum), expected);
    EXPECT_EQ(dir.get("text"), stored);
  }
  EXPECT_EQ(load(dir, 5, "missing"), "0:");
  EXPECT_EQ(load(dir, INT32_MAX / 3 + 1), "-1") << "the size would pass 31 bits";
  EXPECT_EQ(load(dir, 0x55555556) + load(dir, 5, nullptr), "-1-1");
  EXPECT_EQ(get_textarea_file(nullptr, dir.c_str(), "text", 5), -1);
}

TEST(TextareaFile, StoresOnlyAChange) {
  const test::TempDir dir;
  const char two[] = "\u20AC\u20AC";
  const std::tuple<const char*, const char*, uint32_t, int32_t, std::string> cases[] = {
      {"a\n", "a\n", 9, 0, "a\n"}, {"o", "\r\n", 9, 3, "\r\n"},  {"old", "", 9, 1, ""},
      {"", "", 9, 0, ""},          {"abc", "ab", 9, 3, "ab"},    {"abc", "abcd", 3, 4, "abc"},
      {"o", two, 1, 4, "\u20AC"},  {"o", "\xFFz", 9, 2, "\xFF"}, {"abcd", "abc", 1, 0, "abcd"}};
  for (const auto& [stored, text, maximum, result, expected] : cases) {
    dir.put("text", stored);
    dir.age("text");
    EXPECT_EQ(update_textarea_file(dir.c_str(), "text", text, maximum), result) << text;
    EXPECT_EQ(dir.get("text"), expected);
    EXPECT_EQ(dir.touched("text"), result != 0) << text;
  }
}

TEST(TextareaFile, TellsAFailureToStore) {
  const test::TempDir dir;
  EXPECT_EQ(update_textarea_file(dir.c_str(), "text", "", 5), -1);
  EXPECT_EQ(update_textarea_file(dir.c_str(), ".", "a", 0), -1) << "open to read, but not to write";
  EXPECT_EQ(dir.get("text"), std::nullopt);
  dir.put("text", "old");
  EXPECT_EQ(update_textarea_file(dir.c_str(), "text", nullptr, 5), -1);
  EXPECT_EQ(update_textarea_file(dir.c_str(), "text", "a", 0x55555556), -2);
  EXPECT_EQ(dir.get("text"), "old");
}

}  // namespace
