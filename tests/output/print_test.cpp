#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <cstring>

#include "support/capture.h"
#include "support/temp_dir.h"
#include "tavik.h"

namespace {

using test::printed;

// The body gives the number of bytes printed.
template <typename Body>
void expect(const std::string& expected, Body body) {
  uint32_t count = 99;
  EXPECT_EQ(printed([&] { count = static_cast<uint32_t>(body()); }), expected);
  EXPECT_EQ(count, expected.size()) << expected;
}

TEST(Print, TextsPlainAndEscaped) {
  const std::tuple<uint32_t (*)(const char*), const char*, const char*> cases[] = {
      {print_str, "a<\xFF\n", "a<\xFF\n"},
      {print_str_xcrlf, "a\n\r\n\nb", "a\r\n\r\r\n\r\nb"},
      {html_print_text, "a<b>&\"'", "a&lt;b&gt;&amp;&quot;'"},
      {html_print_text, "a\xFF\xC3\xA9\xF0\x9F\x98\x80z\t\r\n\x1B\x7F",
       "a&eacute;z\t\r\n\x1B&#127;"},
      {html_print_text, "\xE2\x80", ""},
      {html_print_text_nl, "x\033By\033b\n<\xC3\xA9z", "x<b>y</b><br>&lt;&eacute;z"},
      {html_print_text_nl, "\033Uu\033u\033Q\033\n\033\033B\xFF\033", "<u>u</u>B"}};
  for (const auto& [print, text, expected] : cases) {
    expect(expected, [&, print = print, text = text] { return print(text); });
    expect("", [&, print = print] { return print(nullptr); });
  }
  expect({"a\0b", 3}, [] { return print_mem("a\0b", 3); });
  expect("", [] { return print_mem(nullptr, 3); });
}

TEST(Print, StopsWhenTheOutputBreaks) {
  const std::string text(3 * BUFSIZ, 'x');
  const test::TempDir dir;
  dir.put("file", text);
  const int file = open(dir.path("file").c_str(), O_RDONLY);
  fflush(stdout);
  const int saved = dup(STDOUT_FILENO);
  const int full = open("/dev/full", O_WRONLY);
  dup2(full, STDOUT_FILENO);
  EXPECT_EQ(print_fd(file), -1);
  const uint32_t count = print_str(text.c_str());
  dup2(saved, STDOUT_FILENO);
  for (const int fd : {saved, full, file}) close(fd);
  clearerr(stdout);
  EXPECT_LT(count, text.size());
  fflush(stdout);
}

TEST(Print, EveryCharacterHasItsEscape) {
  const uint32_t characters[] = {0,     1,     0x22,   0x26,   0x27,    0x3C,   0x3E,
                                 0x7E,  0x7F,  0x9F,   0xA0,   0xA6,    0xD7,   0xFF,
                                 0x100, 0x3E8, 0x2710, 0xFFFF, 0x10041, 0x10000};
  expect(
      "\x01&quot;&amp;'&lt;&gt;~&#127;&#159;&nbsp;&brvbar;&times;&yuml;&#256;&#1000;&#10000;"
      "&#65535;A",
      [&] {
        uint32_t count = 0;
        for (const uint32_t character : characters) count += html_print_ucs2(character);
        return count;
      });
}

TEST(Print, LimitsCountCharactersAndBytesOfTheText) {
  const std::tuple<uint32_t, const char*, uint32_t, const char*> cases[] = {
      {2, "a\xC3\xA4z&", ~0U, "a&auml;"},
      {1, "a&", ~0U, "a"},
      {9, "\xC3\xA4zz", 3, "&auml;z"},
      {~0U, "a<\xFF\x62", ~0U, "a&lt;"},
      {~0U, "abc", 1, "a"},
      {~0U, "a\xC3\xA4", 2, "a"},
      {9, "", 9, ""},
      {0, "abc", 9, ""},
      {9, "abc", 0, ""},
      {9, nullptr, 9, ""},
      {9, "abc", 9, "abc"}};
  for (const auto& [characters, text, bytes, expected] : cases) {
    expect(expected, [&, characters = characters, text = text, bytes = bytes] {
      return html_print_text_limit(characters, text, bytes);
    });
  }
}

TEST(Print, GroupsOfDigits) {
  const std::tuple<const char*, const char*, const char*> cases[] = {
      {"1234567", ",", "1,234,567"}, {"123456", ",", "123,456"},  {"1234", "&;", "1&;234"},
      {"123", ",", "123"},           {"-123", ",", "-,123"},      {"", ",", ""},
      {"12345", "", "12345"},        {"12345", nullptr, "12345"}, {nullptr, ",", ""}};
  for (const auto& [text, mark, expected] : cases) {
    EXPECT_EQ(printed([&, text = text, mark = mark] { print_num_str_mark(text, mark); }), expected);
  }
}

TEST(Print, FileSizes) {
  const std::pair<int64_t, const char*> cases[] = {{1024, "1024&nbsp;Bytes"},
                                                   {1025, "1&nbsp;KiB"},
                                                   {2047, "1&nbsp;KiB"},
                                                   {-5, "-5&nbsp;Bytes"},
                                                   {INT64_MAX, "9007199254740991&nbsp;KiB"}};
  for (const auto& [size, expected] : cases) {
    expect(expected, [&, size = size] { return print_fsize(size); });
  }
}

TEST(PrintFd, CopiesWhatIsLeftOfAFile) {
  const test::TempDir dir;
  for (const size_t size : {0, 1, 4096, 4097, 9000}) {
    const std::string bytes = "skip" + std::string(size, '<');
    dir.put("file", bytes);
    const int fd = open(dir.path("file").c_str(), O_RDONLY);
    lseek(fd, 4, SEEK_SET);
    expect(bytes.substr(4), [fd] { return print_fd(fd); });
    expect("", [fd] { return print_fd(fd); });
    close(fd);
  }
  EXPECT_EQ(print_fd(-1), -1);
}

TEST(HtmlAsprint, TextOfAnyLengthInStepsOf4096) {
  // An escape here has 8 bytes. The buffer grows with less than 16 free and more text to come.
  for (const int32_t size : {0, 1, 511, 512, 1023, 1024, 3000}) {
    std::string text;
    std::string expected;
    for (int32_t i = 0; i < size; ++i) text += "\xC2\xA6", expected += "&brvbar;";
    char* out = nullptr;
    EXPECT_EQ(html_asprint_text(&out, text.c_str()), (size / 512 + 1) * 4096);
    EXPECT_EQ(out, expected);
    free(out);
  }
  char* out = nullptr;
  EXPECT_EQ(html_asprint_text(&out, nullptr), -1);
  EXPECT_EQ(html_asprint_text(nullptr, "a"), -1);
  EXPECT_EQ(asprint_title(&out, "a\"b"), 17);
  EXPECT_STREQ(out, " title=\"a&quot;b\"");
  free(out);
  out = nullptr;
  for (const char* text : {"", "\xFF", static_cast<const char*>(nullptr)}) {
    EXPECT_EQ(asprint_title(&out, text), -1);
    EXPECT_EQ(out, nullptr);
  }
  EXPECT_EQ(asprint_title(nullptr, "a"), -1);
}

}  // namespace
