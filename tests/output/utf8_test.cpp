#include <gtest/gtest.h>

#include <cstring>

#include "tavik.h"

namespace {

constexpr uint32_t kNoLimit = UINT32_MAX;

TEST(Utf8, DecodesOneCharacterAndMovesTheCursor) {
  const struct {
    const char* bytes;
    uint32_t limit, character;
    int moved;
  } cases[] = {
      {"", kNoLimit, 0, 0},
      {"a", 0, 0, 0},
      {"a", 1, 'a', 1},
      {"\x7F", kNoLimit, 0x7F, 1},
      {"\x80z", kNoLimit, 0, 1},
      {"\xBFz", kNoLimit, 0, 1},
      {"\xF0\x9F\x98\x80", kNoLimit, 0, 1},
      {"\xFF", kNoLimit, 0, 1},
      {"\xC3\xA9", kNoLimit, 0xE9, 2},
      {"\xC3\xA9", 2, 0xE9, 2},
      {"\xC3\xA9", 1, 0, 0},
      {"\xC3", kNoLimit, 0, 1},
      {"\xC3"
       "A",
       kNoLimit, 0, 2},
      {"\xC0\x80", kNoLimit, 0, 2},
      {"\xC1\x81", kNoLimit, 0x41, 2},
      {"\xDF\xFF", kNoLimit, 0x83F, 2},
      {"\xE2\x80\xA2", kNoLimit, 0x2022, 3},
      {"\xE2\x80\xA2", 3, 0x2022, 3},
      {"\xE2\x80\xA2", 2, 0, 0},
      {"\xE2\x80\xA2", 1, 0, 0},
      {"\xE2\x80", kNoLimit, 0, 2},
      {"\xE2\x80z", kNoLimit, 0, 3},
      {"\xE2\x80z", 2, 0, 0},
      {"\xE2z", 2, 0, 2},
      {"\xED\xA0\x80", kNoLimit, 0xD800, 3},
      {"\xEF\xBF\xBF", kNoLimit, 0xFFFF, 3},
      {"\xEF\xFF\xFF", kNoLimit, 0x103F, 3},
  };
  for (const auto& c : cases) {
    const char* cursor = c.bytes;
    EXPECT_EQ(utf8_to_ucs2(&cursor, c.limit), c.character) << c.bytes << " limit " << c.limit;
    EXPECT_EQ(cursor - c.bytes, c.moved) << c.bytes << " limit " << c.limit;
  }
  const char* null_text = nullptr;
  EXPECT_EQ(utf8_to_ucs2(&null_text, kNoLimit), 0U);
  EXPECT_EQ(utf8_to_ucs2(nullptr, kNoLimit), 0U);
}

TEST(Utf8, EveryCharacterComesBack) {
  for (uint32_t character = 1; character <= 0xFFFF; ++character) {
    char bytes[4] = "";
    const char* const end = ucs2_to_utf8(bytes, 3, character);
    ASSERT_EQ(end - bytes, character < 0x80 ? 1 : character < 0x800 ? 2 : 3);
    const char* cursor = bytes;
    ASSERT_EQ(utf8_to_ucs2(&cursor, kNoLimit), character);
    ASSERT_EQ(cursor, end);
  }
}

TEST(Utf8, EncodesAllOrNothing) {
  const struct {
    uint32_t character, room;
    int written;
    const char* bytes;
  } cases[] = {
      {'a', 0, 0, "##"},         {'a', 1, 1, "a#"},   {0x80, 1, 0, "##"},
      {0x7FF, 2, 2, "\xDF\xBF"}, {0x800, 2, 0, "##"}, {0x2022, 3, 3, "\xE2\x80\xA2"},
  };
  for (const auto& c : cases) {
    char out[4] = "##";
    EXPECT_EQ(ucs2_to_utf8(out, c.room, c.character) - out, c.written);
    EXPECT_STREQ(out, c.bytes);
  }
  EXPECT_EQ(ucs2_to_utf8(nullptr, 9, 'a'), nullptr);
}

TEST(Utf8, LengthTellsWhereToCut) {
  const struct {
    const char* text;
    uint32_t limit, length, bytes;
  } cases[] = {
      {"abc", 2, 2, 2},       {"abc", 5, 3, 3},
      {"", 5, 0, 0},          {"abc", 0, 0, 0},
      {"a\xFFz", 5, 5, 2},    {"a\xFFz", 1, 1, 1},
      {"\xC3\xA9z", 1, 1, 2}, {"a\xE2\x80", 9, 9, 3},
      {"\xC0\x80z", 9, 9, 2}, {"a\xC3z", kNoLimit, kNoLimit, 3},
  };
  for (const auto& c : cases) {
    uint32_t bytes = 99;
    EXPECT_EQ(utf8_length(c.text, c.limit, &bytes), c.length) << c.text;
    EXPECT_EQ(bytes, c.bytes) << c.text;
    EXPECT_EQ(utf8_length(c.text, c.limit, nullptr), c.length);
  }
  uint32_t bytes = 99;
  EXPECT_EQ(utf8_length(nullptr, 5, &bytes), 0U);
  EXPECT_EQ(bytes, 99U);
}

TEST(Strsncpy, CopiesWhatFitsAndTerminates) {
  const struct {
    uint32_t size;
    const char* source;
    int32_t result;
    const char* expected;
  } cases[] = {
      {4, "abc", 3, "abc"}, {3, "abc", -1, "ab"}, {1, "abc", -1, ""},
      {0, "abc", -1, "##"}, {9, "", 0, ""},       {9, nullptr, -1, "##"},
  };
  for (const auto& c : cases) {
    char out[16] = "##";
    EXPECT_EQ(strsncpy(out, c.size, c.source), c.result);
    EXPECT_STREQ(out, c.expected);
  }
  EXPECT_EQ(strsncpy(nullptr, 4, "abc"), -1);
}

}  // namespace
