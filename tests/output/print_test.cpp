#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <cinttypes>

#include "support/page_file.h"
#include "support/temp_dir.h"
#include "tavik.h"

namespace {

using test::printed;

// Ends a line of the page, with the number of bytes that a function says it printed there.
void line(int64_t count = -1) {
  printf("[%" PRId64 "]\n", count);
}

void texts() {
  line(print_str("a<\n")), line(print_str_xcrlf("a\n\r\n\nb"));
  line(print_mem("abc", 2)), line(print_mem(nullptr, 3));
  line(html_print_text("a<b>&\"'")), line(html_print_text("\xE2\x80"));
  line(html_print_text("a\xFF\xF0\x9F\x98\x80z\x7F"));
  line(html_print_text_nl("x\033By\033b\n<\xC3\xA9z"));
  line(html_print_text_nl("\033Uu\033u\033Q\033\n\033\033B\xFF\033"));
  for (const auto print : {print_str, print_str_xcrlf, html_print_text, html_print_text_nl}) {
    line(print(nullptr));
  }
  for (const uint32_t flags : {0U, PF_RAW, PF_CRLF, PF_RAW | PF_CRLF | PF_DISABLED}) {
    line(print_xstr("<\n", flags));
  }
  for (const uint32_t code : {0U, 65601U, 65535U, 10000U}) line(html_print_ucs2(code));
}

void limited_texts() {
  line(html_print_text_limit(2, "a\xC3\xA4z&", ~0U)), line(html_print_text_limit(1, "a&", ~0U));
  line(html_print_text_limit(9, "\xC3\xA4zz", 3)), line(html_print_text_limit(9, "a\xC3\xA4", 2));
  line(html_print_text_limit(~0U, "a<\xFF\x62", ~0U)), line(html_print_text_limit(9, "abc", 2));
  line(html_print_text_limit(0, "abc", 9)), line(html_print_text_limit(9, "abc", 0));
  line(html_print_text_limit(9, nullptr, 9)), line(html_print_text_limit(9, "", 9));
}

void numbers() {
  for (const char* text : {"1234567", "123456", "123", "-123", ""}) {
    print_num_str_mark(text, ","), line();
  }
  print_num_str_mark("1234", "&;"), print_num_str_mark("1234", ""), line();
  print_num_str_mark("1234", nullptr), print_num_str_mark(nullptr, ","), line();
  for (const int64_t size : {int64_t{1024}, int64_t{1025}, int64_t{2047}, int64_t{-5}, INT64_MAX})
    line(print_fsize(size));
}

void attributes() {
  for (const uint32_t flags : {0xFFFFF270, 0x3U, 0x400U, 0x880U, UINT32_MAX})
    print_flags(flags), line();
  for (const uint32_t index : {0, 1, 2, 3, 4, 5, 8}) puts(html_attr(index));
  for (const char* browser :
       {"Mozilla/5.0 (Windows NT 10.0)", "X11; windows", static_cast<const char*>(nullptr)}) {
    line(get_print_flags(PF_RAW, browser));
  }
}

void formats() {
  const char* const none = nullptr;
  line(html_printf(0, "<%s>", "x")), line(html_printf(7, "<b>%s", "\xC3\xA9"));
  line(html_printf(0, "a\xFFlost%c\xC3%sb&", '|', "")), line(html_printf(1, "%q ab"));
  line(html_printf(1, "%c%c%c%s\"", '<', 0x2022, 0x700E9, "a\xFFz"));
  line(html_printf(1, "%2s.%8s", "\xC3\xA4\xC3\xB6\xC3\xBC", "abc"));
  line(html_printf(1, "%*s|%*s-%s", -1, "abc", 0, "abc", "x"));
  line(html_printf(1, "%0c-%c-%02c-%*c", 'A', 'B', 'C', 3, 0x2022));
  line(html_printf(1, "%.5s,%-5s,%#03s,", "ABCDEF", "ABCDEF", "ABCDEF"));
  line(html_printf(1, "%1.9s", "abcdefghijklmnopqrstuvwxyz"));
  // Digits behind a "*" go on from the digits in front of it; a negative "*" changes nothing.
  line(html_printf(1, "%9*c,%1*0c,%2*c,%*2c", 3, 'a', -1, 'b', -1, 'c', 9, 'd'));
  line(html_printf(1, "%5d|%-5d|%i %+d %#.4x %X %u %hhd", 42, 42, -7, 7, 255, 255, -1, 200));
  line(html_printf(1, "%ld %lu %lx/%s", -5L, 4000000000UL, 0xBEEFL, "x"));
  // More integers than a call passes in registers, texts among them.
  line(html_printf(1, "%d%s%d%s%d%s%d%s%d%s", 1, "a", 2, "b", 3, "c", 4, "d", 5, "e"));
  line(html_printf(1, "%0000000000000000000000000000000-99d", 1));
  line(html_printf(1, "100%% a%5%b")), line(html_printf(1, "abc%5")), line(html_printf(1, ""));
  line(html_printf(1, "%f~ ps!", "x")), line(html_printf(1, "%s%c", none, 0));
}

TEST(Print, PrintsAPage) {
  test::expect_page("output/print.html", [] {
    texts();
    limited_texts();
    numbers();
    attributes();
    formats();
  });
}

TEST(Print, FilesFromWhereTheyAre) {
  const test::TempDir dir;
  for (const size_t size : {0, 1, 4096, 4097, 9000}) {
    const std::string bytes = "skip" + std::string(size, '<');
    dir.put("file", bytes);
    const int fd = open(dir.path("file").c_str(), O_RDONLY);
    lseek(fd, 4, SEEK_SET);
    EXPECT_EQ(printed([=] { EXPECT_EQ(print_fd(fd), size); }), bytes.substr(4));
    EXPECT_EQ(printed([=] { EXPECT_EQ(print_fd(fd), 0); }), "") << "behind its end";
    close(fd);
  }
  EXPECT_EQ(print_fd(-1), -1);
}

TEST(Print, StopsWhenTheOutputBreaks) {
  const std::string text(3 * BUFSIZ, 'x');
  const test::TempDir dir;
  dir.put("file", text);
  const int file = open(dir.path("file").c_str(), O_RDONLY);
  uint32_t count = 0, escaped = 0;
  printed([&] {
    const int full = open("/dev/full", O_WRONLY);
    dup2(full, STDOUT_FILENO);
    EXPECT_EQ(print_fd(file), -1);
    count = print_str(text.c_str());
    escaped = html_print_text(text.c_str());
    close(full);
  });
  clearerr(stdout);
  close(file);
  EXPECT_LT(count, text.size());
  EXPECT_GT(escaped, text.size() - 9) << "character by character";
}

TEST(HtmlAsprint, TextOfAnyLengthInStepsOf4096) {
  // An escape here has 8 bytes. The buffer grows with less than 16 free and more text to come.
  for (const int32_t size : {0, 511, 512, 1023, 1024}) {
    std::string text, expected;
    for (int32_t i = 0; i < size; ++i) text += "\xC2\xA6", expected += "&brvbar;";
    char* out = nullptr;
    EXPECT_EQ(html_asprint_text(&out, text.c_str()), (size / 512 + 1) * 4096);
    EXPECT_EQ(out, expected);
    free(out);
  }
  char* out = nullptr;
  EXPECT_EQ(html_asprint_text(&out, nullptr) + html_asprint_text(nullptr, "a"), -2);
  for (const char* text : {"", "\xFF", static_cast<const char*>(nullptr)}) {
    EXPECT_EQ(asprint_title(&out, text) + asprint_title(nullptr, "a"), -2);
  }
  EXPECT_EQ(out, nullptr);
  EXPECT_EQ(asprint_title(&out, "a\"b"), 17);
  EXPECT_STREQ(out, " title=\"a&quot;b\"");
  free(out);
}

}  // namespace
