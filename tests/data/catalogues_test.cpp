#include <gtest/gtest.h>

#include "support/rows.h"
#include "tavik.h"

namespace {

std::string rows_of(selectbox_text_row row) {
  std::string rows;
  selectbox_text_option option{};
  for (uint32_t index = 0; row(index, 0, nullptr) == row(index, 0, &option); ++index) {
    if (row(index, 0, &option) != 1) return rows + option.value;
    rows += option.value + std::string(":") + option.label + " ";
  }
  return rows;
}

TEST(Catalogues, AreRowsOfTextSelects) {
  EXPECT_EQ(rows_of(get_ovpn_cipher),
            "AES-128-CBC:AES 128 Bit AES-192-CBC:AES 192 Bit AES-256-CBC:AES 256 Bit "
            "BF-CBC:BLOWFISH 128 Bit DES-CBC:DES 64 Bit DES-EDE-CBC:DES EDE 128 Bit "
            "DES-EDE3-CBC:DES EDE3 192 Bit DESX-CBC:DESX 192 Bit CAST5-CBC:CAST5 128 Bit "
            "RC2-40-CBC:RC2 40 Bit RC2-64-CBC:RC2 64 Bit RC2-CBC:RC2 128 Bit none:None none");
  EXPECT_EQ(rows_of(get_ovpn_hash),
            "MD5:MD5 SHA1:SHA1 SHA224:SHA224 SHA256:SHA256 SHA384:SHA384 SHA512:SHA512 "
            "none:None none");
  EXPECT_EQ(get_ovpn_hash(UINT32_MAX, 0, nullptr), -1);
}

TEST(CheckUcs2ToGsm, KnowsTheStandardsAlphabetWithItsOwnDeviations) {
  // Column by column, as the standard prints it, less the capital c with cedilla and the escape.
  std::u16string alphabet =
      u"@\u00A3$\u00A5\u00E8\u00E9\u00F9\u00EC\u00F2\n\u00D8\u00F8\r\u00C5\u00E5"
      u"\u0394_\u03A6\u0393\u039B\u03A9\u03A0\u03A8\u03A3\u0398\u039E\u00C6\u00E6\u00DF\u00C9"
      u" !\"#\u00A4%&'()*+,-./0123456789:;<=>?"
      u"\u00A1ABCDEFGHIJKLMNOPQRSTUVWXYZ\u00C4\u00D6\u00D1\u00DC\u00A7"
      u"\u00BFabcdefghijklmnopqrstuvwxyz\u00E4\u00F6\u00F1\u00FC\u00E0";
  ASSERT_EQ(alphabet.size(), 126U);
  alphabet += u"\u00E7";
  for (uint32_t character = 0; character < 0x10100; ++character) {
    const auto is_in = [character](const std::u16string& set) {
      return character < 0x10000 && set.find(static_cast<char16_t>(character)) != set.npos;
    };
    const int septets = is_in(alphabet) ? 1 : is_in(u"^{}\\[~]|\u20AC") ? 2 : 0;
    ASSERT_EQ(check_ucs2_to_gsm(character), septets) << character;
  }
}

TEST(GetInfoflags, LetsTheByteAtThePositionDecide) {
  const infoflag_row rows[] = {{1, 0}, {2, 1}, {0, 0}};
  const infoflag_row odd[] = {{0x30, 2}, {0x80, -1}, {0, 0}};
  const std::tuple<uint32_t, const infoflag_row*, const char*, const char*, uint32_t> cases[] = {
      {3, rows, "10", nullptr, 1},    {3, rows, "1", nullptr, 1},    {3, rows, "1", "01", 3},
      {7, rows, "/\xFF", "11", 6},    {7, rows, "1", "1", 5},        {7, rows, nullptr, "11", 0},
      {7, rows, "", "11", 0},         {0, rows, "11", nullptr, 0},   {7, nullptr, "0", nullptr, 7},
      {7, rows + 2, "0", nullptr, 7}, {0xFF, odd, "001", "1", 0x7F}, {0xFF, odd, "0", "00", 0x4F},
  };
  for (const auto& [flags, table, first, second, expected] : cases) {
    EXPECT_EQ(get_infoflags(flags, table, first, second), expected) << first;
  }
}

TEST(GetDevinfo, TakesTheFirstRowThatIsHighEnough) {
  int used = 0;
  devinfo_row rows[7] = {};
  for (const int32_t code : {10, 30, -5, 20, 200, 0, 255}) rows[used++].code = code;
  test::expect_rows("0=0|5=0|10=0|11=1|30=1|31=4|200=4|201=0", [&](const char* key) {
    const char text[] = {static_cast<char>(atoi(key)), '\1', '\0'};
    return get_devinfo(rows, text) - rows;
  });
  EXPECT_EQ(get_devinfo(rows, nullptr), rows);
  EXPECT_EQ(get_devinfo(rows + 5, "\1"), rows + 5);
}

}  // namespace
