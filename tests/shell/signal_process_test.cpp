#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>

#include "support/temp_dir.h"
#include "tavik.h"

namespace {

TEST(SignalProcess, SignalsTheProcessOfTheItem) {
  const test::TempDir dir;
  const pid_t child = fork();
  if (child == 0) {
    pause();
    _exit(0);
  }
  dir.put("pid", std::to_string(child) + "\n");
  EXPECT_EQ(signal_process(dir.c_str(), "pid", SIGTERM), 0);
  int status = 0;
  waitpid(child, &status, 0);
  EXPECT_EQ(WTERMSIG(status), SIGTERM);
  EXPECT_EQ(signal_process(dir.c_str(), "pid", SIGTERM), -1);
  EXPECT_EQ(errno, ESRCH);
}

TEST(SignalProcess, NeverSignalsAGroup) {
  const test::TempDir dir;
  errno = 0;
  for (const char* value : {"0", "", "x", "-1"}) {
    dir.put("pid", value);
    // Signal 0 would be accepted for this test's own group.
    EXPECT_EQ(signal_process(dir.c_str(), "pid", 0), -1) << value;
  }
  EXPECT_EQ(errno, 0);
  EXPECT_EQ(signal_process(dir.c_str(), "missing", 0), -1);
  // More than a process number can be is cut to the highest, never to a negative one.
  dir.put("pid", "4294967295");
  EXPECT_EQ(signal_process(dir.c_str(), "pid", 0), -1);
  EXPECT_EQ(errno, ESRCH);
}

TEST(GetProgname, FindsTheLastComponent) {
  EXPECT_STREQ(get_progname(1, "a/b/c"), "c");
  EXPECT_STREQ(get_progname(7, "c"), "c");
  EXPECT_STREQ(get_progname(1, "a/"), "");
  EXPECT_EQ(get_progname(0, "a/b/c"), nullptr);
  EXPECT_EQ(get_progname(1, nullptr), nullptr);
}

}  // namespace
