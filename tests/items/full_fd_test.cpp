#include <gtest/gtest.h>

#include <cerrno>

#include "support/input_file.h"
#include "support/scripted_io.h"
#include "tavik.h"

namespace {

using test::InputFile;
using test::ScriptedIo;

TEST(FullFd, GoesOnThroughShortTransfersInterruptionsAndZeroes) {
  const struct {
    bool writes;
    std::vector<test::Answer> answers;
    int32_t count, result;
    int calls;
    const char* moved;
  } cases[] = {
      {false, {}, 11, 10, 2, "0123456789"},
      {false, {}, -5, 0, 0, ""},
      {false, {{EINTR}, {0, 1}, {EINTR}, {EINTR}}, 10, 10, 5, "0123456789"},
      {false, {{0, 3}, {0, 0}}, 10, 3, 2, "012"},
      {false, {{0, 3}, {EIO}}, 10, -1, 2, "012"},
      {true, {}, -1, 0, 0, ""},
      {true, {{0, 2}, {0, 0}, {EINTR}, {0, 1}}, 5, 5, 5, "01234"},
      {true, {{0, 2}, {ENOSPC}}, 5, -1, 2, "01"},
  };
  for (const auto& c : cases) {
    const InputFile file(c.writes ? "" : "0123456789");
    char buffer[16] = "";
    const ScriptedIo io(file.fd(), c.answers);
    EXPECT_EQ(c.writes ? full_write_fd(file.fd(), "0123456789", c.count)
                       : full_read_fd(file.fd(), buffer, c.count),
              c.result);
    EXPECT_EQ(io.calls(), c.calls);
    EXPECT_EQ(c.writes ? file.bytes() : buffer, c.moved);
  }
}

TEST(FullFd, CopyMovesTheRestInStepsOf4096) {
  const InputFile to;
  for (const int size : {0, 1, 4095, 4096, 4097, 10000}) {
    const InputFile from(std::string(static_cast<size_t>(size), 'x')), copy;
    const ScriptedIo io(copy.fd(), {});
    EXPECT_EQ(full_copy_fd(from.fd(), copy.fd()), size);
    EXPECT_EQ(io.calls(), (size + 4095) / 4096);
    EXPECT_EQ(copy.bytes(), from.bytes());
  }
  EXPECT_EQ(full_copy_fd(-1, to.fd()), -1);
  EXPECT_EQ(full_copy_fd(InputFile("x").fd(), -1), -1);
}

}  // namespace
