#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

#include "support/capture.h"
#include "support/temp_dir.h"
#include "tavik.h"

namespace {

using test::printed;

TEST(Print, PlainTextAndItsVariants) {
  const struct {
    uint32_t (*print)(const char*);
    const char *text, *expected;
  } cases[] = {
      {print_str, "a<\xFF\n", "a<\xFF\n"},
      {print_str, "", ""},
      {print_str, nullptr, ""},
      {print_str_xcrlf, "a\nb", "a\r\nb"},
      {print_str_xcrlf, "\r\n\n", "\r\r\n\r\n"},
      {print_str_xcrlf, nullptr, ""},
      {html_print_text, "a<b>&\"'", "a&lt;b&gt;&amp;&quot;'"},
      {html_print_text, "a\xFF\xC3\xA9\xF0\x9F\x98\x80z", "a&eacute;z"},
      {html_print_text, "\t\r\n\x1B", "\t\r\n\x1B"},
      {html_print_text, "\xE2\x80", ""},
      {html_print_text, nullptr, ""},
      {html_print_text_nl,
       "x\x1B"
       "By\x1B"
       "b\n<z",
       "x<b>y</b><br>&lt;z"},
      {html_print_text_nl,
       "\x1B"
       "Uu\x1B"
       "u\x1BQ\x1B\n\x1B\x1B"
       "B",
       "<u>u</u>B"},
      {html_print_text_nl, "\xC3\xA9\xFF\x1B", "&eacute;"},
      {html_print_text_nl, nullptr, ""},
  };
  for (const auto& c : cases) {
    uint32_t count = 99;
    EXPECT_EQ(printed([&] { count = c.print(c.text); }), c.expected);
    EXPECT_EQ(count, strlen(c.expected)) << c.expected;
  }
}

TEST(Print, MemoryIsPrintedByteForByte) {
  uint32_t count = 0;
  EXPECT_EQ(printed([&] { count = print_mem("a\0b", 3); }), std::string("a\0b", 3));
  EXPECT_EQ(count, 3U);
  EXPECT_EQ(printed([&] { count = print_mem(nullptr, 3); }), "");
  EXPECT_EQ(count, 0U);
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
  const struct {
    uint32_t character;
    const char* expected;
  } cases[] = {
      {0, ""},           {1, "\x01"},          {0x22, "&quot;"},     {0x26, "&amp;"},
      {0x27, "'"},       {0x3C, "&lt;"},       {0x3E, "&gt;"},       {0x7E, "~"},
      {0x7F, "&#127;"},  {0x9F, "&#159;"},     {0xA0, "&nbsp;"},     {0xA6, "&brvbar;"},
      {0xD7, "&times;"}, {0xDF, "&szlig;"},    {0xE9, "&eacute;"},   {0xFF, "&yuml;"},
      {0x100, "&#256;"}, {0x2022, "&#8226;"},  {0xFFFF, "&#65535;"}, {0x10041, "A"},
      {0x10000, ""},     {0x2710, "&#10000;"}, {0x3E8, "&#1000;"},
  };
  for (const auto& c : cases) {
    uint32_t count = 99;
    EXPECT_EQ(printed([&] { count = html_print_ucs2(c.character); }), c.expected);
    EXPECT_EQ(count, strlen(c.expected));
  }
}

TEST(Print, LimitsCountCharactersAndBytesOfTheText) {
  const struct {
    uint32_t characters;
    const char* text;
    uint32_t bytes;
    const char* expected;
  } cases[] = {
      {2, "\xC3\xA4\xC3\xB6\xC3\xBC", UINT32_MAX, "&auml;&ouml;"},
      {UINT32_MAX,
       "a<\xFF"
       "b",
       UINT32_MAX, "a&lt;"},
      {UINT32_MAX, "abc", 2, "ab"},
      {UINT32_MAX, "a\xC3\xA4", 2, "a"},
      {0, "abc", 9, ""},
      {9, "abc", 0, ""},
      {9, "", 9, ""},
      {9, nullptr, 9, ""},
      {9, "abc", 9, "abc"},
  };
  for (const auto& c : cases) {
    uint32_t count = 99;
    EXPECT_EQ(printed([&] { count = html_print_text_limit(c.characters, c.text, c.bytes); }),
              c.expected);
    EXPECT_EQ(count, strlen(c.expected));
  }
}

TEST(Print, GroupsOfDigits) {
  const struct {
    const char *text, *mark, *expected;
  } cases[] = {
      {"1234567", ",", "1,234,567"},    {"123456", ",", "123,456"},
      {"1234", ",", "1,234"},           {"123", ",", "123"},
      {"-123", ",", "-,123"},           {"", ",", ""},
      {"1234", "&nbsp;", "1&nbsp;234"}, {"12345", "", "12345"},
      {"12345", nullptr, "12345"},      {nullptr, ",", ""},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(printed([&] { print_num_str_mark(c.text, c.mark); }), c.expected);
  }
}

TEST(Print, FileSizes) {
  const struct {
    int64_t size;
    const char* expected;
  } cases[] = {
      {0, "0&nbsp;Bytes"},
      {1024, "1024&nbsp;Bytes"},
      {1025, "1&nbsp;KiB"},
      {2047, "1&nbsp;KiB"},
      {1048576, "1024&nbsp;KiB"},
      {-5, "-5&nbsp;Bytes"},
      {INT64_MAX, "9007199254740991&nbsp;KiB"},
  };
  for (const auto& c : cases) {
    int32_t result = 0;
    EXPECT_EQ(printed([&] { result = print_fsize(c.size); }), c.expected);
    EXPECT_EQ(result, static_cast<int32_t>(strlen(c.expected)));
  }
}

TEST(PrintFd, CopiesWhatIsLeftOfAFile) {
  const test::TempDir dir;
  for (const size_t size : {0, 1, 4095, 4096, 4097, 9000}) {
    const std::string bytes = "skip" + std::string(size, '<');
    dir.put("file", bytes);
    const int fd = open(dir.path("file").c_str(), O_RDONLY);
    lseek(fd, 4, SEEK_SET);
    int32_t result = -2;
    EXPECT_EQ(printed([&] { result = print_fd(fd); }), bytes.substr(4));
    EXPECT_EQ(result, static_cast<int32_t>(size));
    EXPECT_EQ(printed([&] { result = print_fd(fd); }), "") << "nothing is left";
    EXPECT_EQ(result, 0);
    close(fd);
  }
  EXPECT_EQ(print_fd(-1), -1);
}

TEST(HtmlAsprint, TextOfAnyLengthInStepsOf4096) {
  for (const size_t size : {0, 1, 500, 509, 510, 511, 512, 513, 1018, 1019, 1020, 3000}) {
    std::string text;
    std::string expected;
    for (size_t i = 0; i < size; ++i) text += "\xC2\xA6", expected += "&brvbar;";
    char* out = nullptr;
    const int32_t result = html_asprint_text(&out, text.c_str());
    EXPECT_EQ(out, expected);
    EXPECT_EQ(result % 4096, 0);
    EXPECT_GT(result, static_cast<int32_t>(expected.size()));
    // The 511th escape leaves less than 16 bytes, so the buffer grows if another character follows.
    if (size <= 512) {
      EXPECT_EQ(result, size < 512 ? 4096 : 8192);
    }
    free(out);
  }
  char* out = nullptr;
  EXPECT_EQ(html_asprint_text(&out, nullptr), -1);
  EXPECT_EQ(html_asprint_text(nullptr, "a"), -1);
}

TEST(HtmlAsprint, Title) {
  char* out = nullptr;
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
