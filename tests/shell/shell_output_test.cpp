#include <gtest/gtest.h>

#include "support/capture.h"
#include "tavik.h"

namespace {

int32_t append(uintptr_t context, char* text) {
  *reinterpret_cast<std::string*>(context) += std::string("[") + text + "]";
  return -1;
}

std::string lines_of(shell_output& list) {
  std::string lines;
  shell_line(&list, append, reinterpret_cast<uintptr_t>(&lines));
  list = {};
  return lines;
}

TEST(ShellRun, AppendsToTheListAndTellsTheStatus) {
  shell_output list{};
  const char* const none = nullptr;
  EXPECT_EQ(shell_run(&list, none), -1);
  EXPECT_EQ(shell_run(&list, "echo %s; printf '\\n'; echo 2", "1"), 0);
  EXPECT_EQ(list.count, 3U);
  EXPECT_EQ(list.first->length, 2U);
  EXPECT_EQ(shell_run(&list, "exit 1"), 256);
  EXPECT_EQ(shell_run(&list, "printf 'a\\0b\\n\\0c\\nd'; head -c 9000 /dev/zero | tr '\\0' y"), 0);
  EXPECT_EQ(list.count, 5U) << "the line that begins with a NUL is dropped";
  EXPECT_EQ(lines_of(list), "[1\n][\n][2\n][a][d" + std::string(9000, 'y') + "]");
  EXPECT_EQ(shell_run(nullptr, "echo x; exit 4"), 4 << 8);
}

TEST(ShellPrint, PrintsAndFreesTheLines) {
  const struct {
    uint32_t flags;
    const char *command, *output;
  } cases[] = {
      {0, "printf '<1>\\n2'", "&lt;1&gt;\n2"},
      {PF_RAW | PF_CRLF, "printf '<1>\\n2'", "<1>\n2"},
      {PF_COMMENT | PF_PRE | PF_QUIET, "echo '&'", "<!--<pre>&amp;\n</pre>-->"},
      {PF_COMMENT | PF_PRE, "true", ""},
  };
  for (const auto& c : cases) {
    shell_output list{};
    shell_run(&list, "%s", c.command);
    EXPECT_EQ(test::printed([&] { shell_print(&list, c.flags); }), c.output) << c.command;
  }
  EXPECT_EQ(test::printed([] { shell_print(nullptr, PF_PRE); }), "");
}

TEST(ShellLine, OnlyFreesWithoutACallback) {
  shell_output list{};
  shell_run(&list, "echo x");
  shell_line(&list, nullptr, 0);
  shell_line(nullptr, append, 0);
  EXPECT_EQ(list.count, 1U) << "the record stays as it is";
}

}  // namespace
