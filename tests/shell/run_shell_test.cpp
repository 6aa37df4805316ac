#include <gtest/gtest.h>

#include <csignal>

#include "support/capture.h"
#include "support/no_descriptors.h"
#include "tavik.h"

namespace {

TEST(RunShell, PrintsTheOutputInItsWrappers) {
  const struct {
    uint32_t flags;
    const char* command;
    std::string output;
    int32_t status;
  } cases[] = {
      {0, "echo '<a>'; echo b", "&lt;a&gt;\nb\n", 0},
      {PF_COMMENT | PF_PRE, "printf '<1>\n'", "<!--<pre>&lt;1&gt;\n</pre>-->", 0},
      {PF_COMMENT, "true", "<!---->", 0},
      {PF_PRE, "echo x; false", "<pre>x\n</pre>", 256},
      {PF_RAW, "printf '<1>\\n<2>'", "<1>\n<2>", 0},
      {PF_RAW | PF_CRLF, "printf '<1>\\n<2>\\n'", "<1>\r\n<2>\r\n", 0},
      {PF_CRLF, "echo '<1>'", "&lt;1&gt;\n", 0},
      {0, "kill -9 $$", "", 9},
      {0, "no-such-command 2>&-", "", 127 << 8},
      {0, "head -c 10000 /dev/zero | tr '\\0' y", std::string(10000, 'y'), 0},
      {PF_QUIET | PF_PRE | PF_COMMENT, "echo x; exit 2", "", 512},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(test::printed(
                  [&] { EXPECT_EQ(run_shell(c.flags, "%s", c.command), c.status) << c.command; }),
              c.output)
        << c.command;
  }
}

TEST(RunShell, FormsTheCommand) {
  const char* const none = nullptr;
  EXPECT_EQ(test::printed([&] {
              run_shell(0, "echo %d%%%s", 5, "x");
              EXPECT_EQ(run_shell(PF_PRE, none), -1);
            }),
            "5%x\n");
}

TEST(RunShell, SaysSoWhenTheShellCannotBeStarted) {
  EXPECT_EQ(test::printed([] {
              const test::NoDescriptors none;
              EXPECT_EQ(run_shell(PF_COMMENT | PF_PRE, "echo x"), -1);
              EXPECT_EQ(run_shell(PF_QUIET | PF_PRE, "echo x"), -1);
              EXPECT_EQ(shell_run(nullptr, "echo x"), -1);
            }),
            "<!--<pre>unable to run script!\n</pre>-->");
}

TEST(RunShell, SaysSoBehindTheOutputWhenThereIsNoStatus) {
  // Children that nobody needs to wait for leave none behind.
  const auto before = signal(SIGCHLD, SIG_IGN);
  EXPECT_EQ(test::printed([] {
              EXPECT_EQ(run_shell(PF_PRE, "echo x"), -1);
              EXPECT_EQ(run_shell(PF_QUIET, "echo x"), -1);
            }),
            "<pre>x\nunable to run script!\n</pre>");
  signal(SIGCHLD, before);
}

}  // namespace
