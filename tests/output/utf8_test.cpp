#include <gtest/gtest.h>

#include "support/rows.h"
#include "tavik.h"

namespace {

using test::expect_rows;
using test::joined;

constexpr uint32_t kNoLimit = UINT32_MAX;

TEST(Utf8, DecodesOneCharacterAndMovesTheCursor) {
  // Three bytes and the limit; the character and how far the cursor moves.
  expect_rows(
      "000000 9=0 0|610000 0=0 0|610000 1=61 1|7F0000 9=7F 1|807A00 9=0 1|BF7A00 9=0 1|"
      "F09F98 9=0 1|FF0000 9=0 1|C3A900 9=E9 2|C3A900 2=E9 2|C3A900 1=0 0|C30000 9=0 1|"
      "C34100 9=0 2|C08000 9=0 2|C18100 9=41 2|DFFF00 9=83F 2|E280A2 9=2022 3|E280A2 3=2022 3|"
      "E280A2 2=0 0|E280A2 1=0 0|E28000 9=0 2|E2807A 9=0 3|E2807A 2=0 0|E27A00 2=0 2|"
      "EDA080 9=D800 3|EFBFBF 9=FFFF 3|EFFFFF 9=103F 3",
      [](const char* row) {
        char text[4] = "", shown[16];
        uint32_t limit = 0;
        sscanf(row, "%2hhx%2hhx%2hhx %u", &text[0], &text[1], &text[2], &limit);
        const char* cursor = text;
        const uint32_t character = utf8_to_ucs2(&cursor, limit);
        snprintf(shown, sizeof shown, "%X %d", character, static_cast<int>(cursor - text));
        return std::string(shown);
      });
  const char* null_text = nullptr;
  EXPECT_EQ(utf8_to_ucs2(&null_text, kNoLimit) + utf8_to_ucs2(nullptr, kNoLimit), 0U);
}

TEST(Utf8, EncodesEveryCharacterWholeOrNotAtAll) {
  for (uint32_t character = 1; character <= 0xFFFF; ++character) {
    char bytes[4] = "";
    const uint32_t length = character < 0x80 ? 1 : character < 0x800 ? 2 : 3;
    ASSERT_EQ(ucs2_to_utf8(bytes, length - 1, character), bytes);
    ASSERT_STREQ(bytes, "");
    ASSERT_EQ(ucs2_to_utf8(bytes, length, character), bytes + length);
    const char* cursor = bytes;
    ASSERT_EQ(utf8_to_ucs2(&cursor, kNoLimit), character);
    ASSERT_EQ(cursor, bytes + length);
  }
  EXPECT_EQ(ucs2_to_utf8(nullptr, 9, 'a'), nullptr);
}

TEST(Utf8, LengthTellsWhereToCut) {
  // The limit and the text.
  expect_rows(
      "5 abc=3 3|5 =0 0|5 a\xFFz=5 2|5 a\xC3z=5 3|5 a\xE2\x80=5 3|1 abc=1 1|1 a\xFFz=1 1|"
      "1 \xC3\xA9z=1 2",
      [](const char* row) {
        uint32_t bytes = 99;
        const uint32_t length = utf8_length(row + 2, str_to_uint(row), &bytes);
        EXPECT_EQ(utf8_length(row + 2, str_to_uint(row), nullptr), length);
        return joined(length, bytes);
      });
  EXPECT_EQ(utf8_length(nullptr, 5, nullptr), 0U);
}

TEST(Strsncpy, CopiesWhatFitsAndTerminates) {
  const auto copied = [](uint32_t size, const char* source) {
    char out[16] = "##";
    const int32_t result = strsncpy(out, size, source);
    return joined(result, out);
  };
  EXPECT_EQ(copied(4, "abc") + copied(3, "abc") + copied(1, "abc"), "3 abc-1 ab-1 ");
  EXPECT_EQ(copied(0, "abc") + copied(9, "") + copied(9, nullptr), "-1 ##0 -1 ##");
  EXPECT_EQ(strsncpy(nullptr, 4, "abc"), -1);
}

}  // namespace
