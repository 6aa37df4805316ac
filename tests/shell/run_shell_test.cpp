#include <gtest/gtest.h>

#include <csignal>

#include "support/capture.h"
#include "support/no_descriptors.h"
#include "tavik.h"

namespace {

struct Outcome {
  int32_t result;
  std::string output;
};

Outcome run(uint32_t flags, const char* command) {
  Outcome outcome{};
  outcome.output = test::printed([&] { outcome.result = run_shell(flags, "%s", command); });
  return outcome;
}

constexpr char kSorry[] = "unable to run script!\n";

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
      {0, "exit 7", "", 7 << 8},
      {0, "kill -9 $$", "", 9},
      {0, "no-such-command 2>&-", "", 127 << 8},
      {0, "head -c 10000 /dev/zero | tr '\\0' y", std::string(10000, 'y'), 0},
      {PF_QUIET | PF_PRE | PF_COMMENT, "echo x; exit 2", "", 512},
  };
  for (const auto& c : cases) {
    const Outcome outcome = run(c.flags, c.command);
    EXPECT_EQ(outcome.output, c.output) << c.command;
    EXPECT_EQ(outcome.result, c.status) << c.command;
  }
}

TEST(RunShell, FormsTheCommand) {
  int32_t result = 0;
  EXPECT_EQ(test::printed([&] { result = run_shell(0, "echo %d%%%s", 5, "x"); }), "5%x\n");
  const char* const none = nullptr;
  EXPECT_EQ(test::printed([&] { result = run_shell(PF_PRE, none); }), "");
  EXPECT_EQ(result, -1);
}

TEST(RunShell, SaysSoWhenTheShellCannotBeStarted) {
  Outcome wrapped;
  Outcome quiet;
  int32_t listed = 0;
  wrapped.output = test::printed([&] {
    const test::NoDescriptors none;
    wrapped.result = run_shell(PF_COMMENT | PF_PRE, "echo x");
    quiet.result = run_shell(PF_QUIET | PF_PRE, "echo x");
    listed = shell_run(nullptr, "echo x");
  });
  EXPECT_EQ(wrapped.output, std::string("<!--<pre>") + kSorry + "</pre>-->");
  EXPECT_EQ(wrapped.result + quiet.result + listed, -3);
}

TEST(RunShell, SaysSoBehindTheOutputWhenThereIsNoStatus) {
  // Children that nobody needs to wait for leave none behind.
  const auto before = signal(SIGCHLD, SIG_IGN);
  const Outcome wrapped = run(PF_PRE, "echo x");
  const Outcome quiet = run(PF_QUIET, "echo x");
  signal(SIGCHLD, before);
  EXPECT_EQ(wrapped.output, std::string("<pre>x\n") + kSorry + "</pre>");
  EXPECT_EQ(quiet.output, "");
  EXPECT_EQ(wrapped.result + quiet.result, -2);
}

}  // namespace
