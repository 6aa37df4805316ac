#include <fcntl.h>
#include <gtest/gtest.h>

#include <cerrno>

#include "support/capture.h"
#include "support/input_file.h"
#include "support/scripted_io.h"
#include "tavik.h"

namespace {

TEST(FullLineReadFd, ReadsNothingBehindTheLine) {
  const std::string longest(1022, 'x');
  const struct {
    std::string input;
    uint32_t size;
    int32_t length;
    const char* text;
    size_t left;
  } cases[] = {
      {"abc\r\ndef", 1024, 3, "abc", 3},
      {"\r\n\r\n", 1024, 0, "", 2},
      {"\r\r\n\n", 1024, 1, "\r", 1},
      {"a\rb\nc\r\n", 1024, 5, "a\rb\nc", 0},
      {longest + "\r\n\r\n", 1024, 1022, longest.c_str(), 2},
      {longest + "x\r\n" + longest + "\r\n", 1024, 0, nullptr, 0},
      {"a\r\nbc", 3, 1, "a", 2},
      {"ab\r\nc", 3, 0, nullptr, 0},
      {"abc", 1024, 0, nullptr, 0},
      {"\r", 1024, 0, nullptr, 0},
      {"", 1024, 0, nullptr, 0},
      {"abc\r\n", 1, -1, nullptr, 5},
  };
  for (const auto& c : cases) {
    for (const ssize_t piece : {1, 4096}) {
      const test::InputFile file(c.input);
      const test::ScriptedIo arriving(file.fd(), std::vector<test::Answer>(4000, {0, piece}));
      // The byte behind the first one that arrives is not the line's.
      std::string buffer(c.size, '\n');
      EXPECT_EQ(full_line_read_fd(file.fd(), buffer.data(), c.size), c.length) << c.input;
      EXPECT_STREQ(c.text == nullptr ? nullptr : buffer.c_str(), c.text);
      EXPECT_EQ(file.left(), c.left) << c.input;
    }
  }
}

TEST(FullLineReadFd, TellsAReadError) {
  for (const size_t good : {0, 1, 4, 6}) {
    const test::InputFile file("abcdefgh\r\n");
    std::vector<test::Answer> answers(good, {0, 1});
    answers.push_back({EIO, 0});
    const test::ScriptedIo failing(file.fd(), answers);
    char buffer[5];
    EXPECT_EQ(full_line_read_fd(file.fd(), buffer, sizeof buffer), -1) << good;
  }
}

TEST(MpartSinks, WriteAllTheyGet) {
  int32_t descriptors[] = {0, -1, 0};
  const int file = memfd_create("sink", MFD_CLOEXEC);
  descriptors[2] = file;
  for (int32_t& fd : descriptors) EXPECT_EQ(mpart_write_fd(&fd, "a\0b", 3), 0);
  EXPECT_EQ(test::take_text(file), std::string("a\0b", 3));
  EXPECT_EQ(mpart_write_fd(&descriptors[2], "a", 1), 0) << "the descriptor is closed by now";
  EXPECT_EQ(mpart_write_fd(nullptr, "a", 1), -1);
  EXPECT_EQ(test::printed([] { EXPECT_EQ(mpart_fwrite(stdout, "a\0bc", 3), 0); }),
            std::string("a\0b", 3));
  EXPECT_EQ(mpart_fwrite(nullptr, "a", 1), -1);
}

TEST(ValidFilename, KeepsTheLastComponent) {
  const std::pair<const char*, const char*> cases[] = {
      {"C:\\dir\\a.txt", "a.txt"}, {"/x\\y", "y"}, {"a\\b/c", "c"}, {"a/", ""}, {"..", ".."}};
  for (const auto& [path, name] : cases) EXPECT_STREQ(valid_filename(path), name);
  EXPECT_EQ(valid_filename(nullptr), nullptr);
}

}  // namespace
