#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <cerrno>

#include "support/scripted_io.h"
#include "support/temp_dir.h"
#include "tavik.h"

namespace {

using test::Answer;
using test::ScriptedIo;
using test::TempDir;

// A file of ten bytes, open for reading, and one that is empty, open for writing.
class FullFd : public testing::Test {
 protected:
  FullFd() {
    dir_.put("in", "0123456789");
    in_ = open(dir_.path("in").c_str(), O_RDONLY);
    out_ = open(dir_.path("out").c_str(), O_WRONLY | O_CREAT, 0600);
  }
  ~FullFd() override {
    close(in_);
    close(out_);
  }
  TempDir dir_;
  int in_;
  int out_;
};

TEST_F(FullFd, ReadGoesOnThroughShortReadsAndInterruptions) {
  const struct {
    std::vector<Answer> answers;
    int32_t count, result;
    int calls;
  } cases[] = {
      {{}, 10, 10, 1},
      {{}, 11, 10, 2},
      {{}, 0, 0, 0},
      {{}, -5, 0, 0},
      {{{0, 3}, {0, 4}}, 10, 10, 3},
      {{{EINTR}, {0, 1}, {EINTR}, {EINTR}}, 10, 10, 5},
      {{{0, 3}, {0, 0}}, 10, 3, 2},
      {{{0, 3}, {EIO}}, 10, -1, 2},
  };
  for (const auto& c : cases) {
    char buffer[16] = "";
    lseek(in_, 0, SEEK_SET);
    const ScriptedIo io(in_, c.answers);
    EXPECT_EQ(full_read_fd(in_, buffer, c.count), c.result);
    EXPECT_EQ(io.calls(), c.calls);
    if (c.result > 0) {
      EXPECT_EQ(std::string(buffer), std::string("0123456789", static_cast<size_t>(c.result)));
    }
  }
}

TEST_F(FullFd, WriteGoesOnThroughShortWritesInterruptionsAndZeroes) {
  const struct {
    std::vector<Answer> answers;
    int32_t count, result;
    int calls;
    std::string file;
  } cases[] = {
      {{}, 5, 5, 1, "abcde"},
      {{}, 0, 0, 0, ""},
      {{}, -1, 0, 0, ""},
      {{{0, 2}, {0, 0}, {EINTR}, {0, 1}}, 5, 5, 5, "abcde"},
      {{{0, 2}, {ENOSPC}}, 5, -1, 2, "ab"},
  };
  for (const auto& c : cases) {
    ASSERT_EQ(ftruncate(out_, 0), 0);
    lseek(out_, 0, SEEK_SET);
    const ScriptedIo io(out_, c.answers);
    EXPECT_EQ(full_write_fd(out_, "abcde", c.count), c.result);
    EXPECT_EQ(io.calls(), c.calls);
    EXPECT_EQ(dir_.get("out"), c.file);
  }
}

TEST_F(FullFd, CopyMovesTheRestInStepsOf4096) {
  for (const size_t size : {0, 1, 4095, 4096, 4097, 10000}) {
    const std::string bytes(size, 'x');
    dir_.put("in", bytes);
    const int in = open(dir_.path("in").c_str(), O_RDONLY);
    const int out = open(dir_.path("out").c_str(), O_WRONLY | O_TRUNC);
    const ScriptedIo io(out, {});
    EXPECT_EQ(full_copy_fd(in, out), static_cast<int32_t>(size));
    EXPECT_EQ(io.calls(), static_cast<int>((size + 4095) / 4096));
    EXPECT_EQ(dir_.get("out"), bytes);
    close(in);
    close(out);
  }
  EXPECT_EQ(full_copy_fd(-1, out_), -1);
  EXPECT_EQ(full_copy_fd(in_, -1), -1);
}

}  // namespace
