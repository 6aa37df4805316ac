#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>

#include "support/capture.h"
#include "support/no_descriptors.h"
#include "support/rows.h"
#include "support/temp_dir.h"
#include "tavik.h"

namespace {

using test::expect_rows;
using test::joined;
using test::printed;

// The result and the text on the heap, "none" if there is none.
std::string captured(int32_t (*run)(char**, const char*), const std::string& command) {
  char* out = nullptr;
  EXPECT_EQ(run(nullptr, command.c_str()) + run(&out, nullptr), -2);
  const int32_t result = run(&out, command.c_str());
  const std::string text = joined(result, out == nullptr ? "none" : out);
  free(out);
  return text;
}

TEST(AsprintShell, TakesOneLineFeedOffTheOutput) {
  expect_rows(
      "printf 'a\\nb\\n\\n'=4096 a\nb\n|echo=4096 |true=4096 |echo x; exit 3=4096 x|"
      "printf 'a\\0b'=4096 a|printf a; sleep 0.05; printf b=4096 ab",
      [](const char* command) { return captured(asprint_shell, command); });
  expect_rows("3839=4096|3840=8192|7935=8192|7936=12288|1000000=1003520", [](std::string size) {
    const std::string text = captured(asprint_shell, "head -c " + size + " /dev/zero | tr '\\0' y");
    EXPECT_EQ(text.substr(text.find(' ') + 1), std::string(std::stoul(size), 'y'));
    return text.substr(0, text.find(' '));
  });
  EXPECT_EQ(captured(asprint_title_shell, "printf '<\"a\\n'"), "20  title=\"&lt;&quot;a\"");
  EXPECT_EQ(captured(asprint_title_shell, "echo"), "-1 none");
}

TEST(RunShell, PrintsTheOutputInItsWrappers) {
  const auto run = [](uint32_t flags, const char* command) {
    int32_t status = 0;
    const std::string output = printed([&] { status = run_shell(flags, "%s", command); });
    return joined(status, output);
  };
  EXPECT_EQ(run(0, "echo '<a>'; echo b"), "0 &lt;a&gt;\nb\n");
  EXPECT_EQ(run(PF_COMMENT | PF_PRE, "printf '<1>\n'"), "0 <!--<pre>&lt;1&gt;\n</pre>-->");
  EXPECT_EQ(run(PF_COMMENT, "true") + run(PF_PRE, "false"), "0 <!---->256 <pre></pre>");
  EXPECT_EQ(run(PF_RAW | PF_CRLF, "printf '<1>\\n<2>\\n'"), "0 <1>\r\n<2>\r\n");
  EXPECT_EQ(run(PF_QUIET | PF_PRE | PF_COMMENT, "echo x; kill -9 $$"), "9 ");
  EXPECT_EQ(run(0, "head -c 10000 /dev/zero | tr '\\0' y"), "0 " + std::string(10000, 'y'));
  const char* const none = nullptr;
  EXPECT_EQ(printed([=] { EXPECT_EQ(run_shell(PF_PRE, none), -1); }), "");
}

TEST(RunShell, SaysSoWithoutAShellOrItsStatus) {
  EXPECT_EQ(printed([] {
              const test::NoDescriptors none;
              EXPECT_EQ(run_shell(PF_COMMENT | PF_PRE, "echo x") + run_shell(PF_QUIET, "echo x"),
                        -2);
              char* out = nullptr;
              EXPECT_EQ(shell_run(nullptr, "echo x") + asprint_shell(&out, "echo x"), -2);
            }),
            "<!--<pre>unable to run script!\n</pre>-->");
  // Children that nobody needs to wait for leave none behind.
  const auto before = signal(SIGCHLD, SIG_IGN);
  EXPECT_EQ(
      printed([] { EXPECT_EQ(run_shell(PF_PRE, "echo x") + run_shell(PF_QUIET, "echo x"), -2); }),
      "<pre>x\nunable to run script!\n</pre>");
  signal(SIGCHLD, before);
}

int32_t append(uintptr_t context, char* text) {
  *reinterpret_cast<std::string*>(context) += std::string("[") + text + "]";
  return -1;
}

TEST(ShellRun, AppendsToTheListAndTellsTheStatus) {
  shell_output list{};
  const char* const none = nullptr;
  EXPECT_EQ(shell_run(&list, none), -1);
  EXPECT_EQ(shell_run(&list, "echo %s; printf '\\n'; echo 2", "1"), 0);
  EXPECT_EQ(joined(list.count, list.first->length), "3 2");
  EXPECT_EQ(shell_run(&list, "exit 1"), 256);
  EXPECT_EQ(shell_run(&list, "printf 'a\\0b\\n\\0c\\nd'; head -c 9000 /dev/zero | tr '\\0' y"), 0);
  EXPECT_EQ(list.count, 5U) << "the line that begins with a NUL is dropped";
  std::string lines;
  shell_line(&list, append, reinterpret_cast<uintptr_t>(&lines));
  EXPECT_EQ(lines, "[1\n][\n][2\n][a][d" + std::string(9000, 'y') + "]");
  EXPECT_EQ(shell_run(nullptr, "echo x; exit 4"), 4 << 8);
  list = {};
  shell_run(&list, "echo x");
  shell_line(&list, nullptr, 0), shell_line(nullptr, append, 0);
  EXPECT_EQ(list.count, 1U) << "the record stays as it is";
}

TEST(ShellPrint, PrintsAndFreesTheLines) {
  const auto print = [](uint32_t flags, const char* command) {
    shell_output list{};
    shell_run(&list, "%s", command);
    return printed([&] { shell_print(&list, flags); });
  };
  EXPECT_EQ(print(0, "printf '<1>\\n2'"), "&lt;1&gt;\n2");
  EXPECT_EQ(print(PF_RAW | PF_CRLF, "printf '<1>\\n2'"), "<1>\n2");
  EXPECT_EQ(print(PF_COMMENT | PF_PRE | PF_QUIET, "echo '&'"), "<!--<pre>&amp;\n</pre>-->");
  EXPECT_EQ(print(PF_COMMENT | PF_PRE, "true"), "");
  EXPECT_EQ(printed([] { shell_print(nullptr, PF_PRE); }), "");
}

TEST(SignalProcess, SignalsTheProcessOfTheItemAndNeverAGroup) {
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
  EXPECT_EQ(signal_process(dir.c_str(), "missing", 0), -1);
  // Signal 0 would be accepted for this test's own group. More than a process number can be is cut
  // to the highest, never to a negative one.
  for (const std::string value : {"0", "", "x", "-1", "4294967295"}) {
    dir.put("pid", value);
    errno = 0;
    EXPECT_EQ(signal_process(dir.c_str(), "pid", 0), -1) << value;
    EXPECT_EQ(errno, value.size() == 10 ? ESRCH : 0) << value;
  }
}

TEST(GetProgname, FindsTheLastComponent) {
  expect_rows("a/b/c=c|c=c|a/=", [](const char* path) { return get_progname(7, path); });
  EXPECT_EQ(get_progname(0, "a/b/c"), nullptr);
  EXPECT_EQ(get_progname(1, nullptr), nullptr);
}

}  // namespace
