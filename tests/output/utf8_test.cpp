#include <gtest/gtest.h>

#include "tavik.h"

namespace {

constexpr uint32_t kNoLimit = UINT32_MAX;

TEST(Utf8, DecodesOneCharacterAndMovesTheCursor) {
  // Three bytes, the limit, the character, and how far the cursor moves.
  const std::tuple<uint32_t, uint32_t, uint32_t, int> cases[] = {
      {0x000000, 9, 0x0000, 0}, {0x610000, 0, 0x0000, 0},        {0x610000, 1, 0x0061, 1},
      {0x7F0000, 9, 0x007F, 1}, {0x807A00, 9, 0x0000, 1},        {0xBF7A00, 9, 0x0000, 1},
      {0xF09F98, 9, 0x0000, 1}, {0xFF0000, 9, 0x0000, 1},        {0xC3A900, 9, 0x00E9, 2},
      {0xC3A900, 2, 0x00E9, 2}, {0xC3A900, 1, 0x0000, 0},        {0xC30000, 9, 0x0000, 1},
      {0xC34100, 9, 0x0000, 2}, {0xC08000, 9, 0x0000, 2},        {0xC18100, 9, 0x0041, 2},
      {0xDFFF00, 9, 0x083F, 2}, {0xE280A2, 9, 0x2022, 3},        {0xE280A2, 3, 0x2022, 3},
      {0xE280A2, 2, 0x0000, 0}, {0xE280A2, 1, 0x0000, 0},        {0xE28000, 9, 0x0000, 2},
      {0xE2807A, 9, 0x0000, 3}, {0xE2807A, 2, 0x0000, 0},        {0xE27A00, 2, 0x0000, 2},
      {0xEDA080, 9, 0xD800, 3}, {0xEFBFBF, kNoLimit, 0xFFFF, 3}, {0xEFFFFF, 9, 0x103F, 3}};
  for (const auto& [bytes, limit, character, moved] : cases) {
    const char text[] = {char(bytes >> 16), char(bytes >> 8), char(bytes), '\0'};
    const char* cursor = text;
    EXPECT_EQ(utf8_to_ucs2(&cursor, limit), character) << std::hex << bytes << " limit " << limit;
    EXPECT_EQ(cursor - text, moved) << std::hex << bytes << " limit " << limit;
  }
  const char* null_text = nullptr;
  EXPECT_EQ(utf8_to_ucs2(&null_text, kNoLimit) + utf8_to_ucs2(nullptr, kNoLimit), 0U);
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
  const std::tuple<uint32_t, uint32_t, int, const char*> cases[] = {{'a', 0, 0, "##"},
                                                                    {'a', 1, 1, "a#"},
                                                                    {0x80, 1, 0, "##"},
                                                                    {0x7FF, 2, 2, "\xDF\xBF"},
                                                                    {0x800, 2, 0, "##"}};
  for (const auto& [character, room, written, bytes] : cases) {
    char out[4] = "##";
    EXPECT_EQ(ucs2_to_utf8(out, room, character) - out, written);
    EXPECT_STREQ(out, bytes);
  }
  EXPECT_EQ(ucs2_to_utf8(nullptr, 9, 'a'), nullptr);
}

TEST(Utf8, LengthTellsWhereToCut) {
  const std::tuple<const char*, uint32_t, uint32_t, uint32_t> cases[] = {
      {"abc", 2, 2, 2},       {"abc", 5, 3, 3},       {"", 5, 0, 0},
      {"abc", 0, 0, 0},       {"a\xFFz", 5, 5, 2},    {"a\xFFz", 1, 1, 1},
      {"\xC3\xA9z", 1, 1, 2}, {"a\xE2\x80", 9, 9, 3}, {"a\xC3z", ~0U, ~0U, 3}};
  for (const auto& [text, limit, length, expected] : cases) {
    uint32_t bytes = 99;
    EXPECT_EQ(utf8_length(text, limit, &bytes), length) << text;
    EXPECT_EQ(utf8_length(text, limit, nullptr), length);
    EXPECT_EQ(utf8_length(nullptr, limit, &bytes), 0U);
    EXPECT_EQ(bytes, expected) << text;
  }
}

TEST(Strsncpy, CopiesWhatFitsAndTerminates) {
  const std::tuple<uint32_t, const char*, int32_t, const char*> cases[] = {
      {4, "abc", 3, "abc"}, {3, "abc", -1, "ab"}, {1, "abc", -1, ""},
      {0, "abc", -1, "##"}, {9, "", 0, ""},       {9, nullptr, -1, "##"}};
  for (const auto& [size, source, result, expected] : cases) {
    char out[16] = "##";
    EXPECT_EQ(strsncpy(out, size, source), result);
    EXPECT_STREQ(out, expected);
  }
  EXPECT_EQ(strsncpy(nullptr, 4, "abc"), -1);
}

}  // namespace
