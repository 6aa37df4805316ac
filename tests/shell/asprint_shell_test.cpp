#include <gtest/gtest.h>

#include "tavik.h"

namespace {

struct Captured {
  std::string text;
  int32_t result;
};

Captured capture(int32_t (*run)(char**, const char*), const std::string& command) {
  char untouched[] = "untouched";
  char* out = untouched;
  const int32_t result = run(&out, command.c_str());
  Captured captured{out, result};
  if (out != untouched) free(out);
  return captured;
}

TEST(AsprintShell, TakesOneLineFeedOff) {
  const std::pair<const char*, const char*> cases[] = {{"printf 'a\\nb\\n\\n'", "a\nb\n"},
                                                       {"echo", ""},
                                                       {"true", ""},
                                                       {"echo x; exit 3", "x"},
                                                       {"printf 'a\\0b'", "a"},
                                                       {"printf a; sleep 0.05; printf b", "ab"}};
  for (const auto& [command, text] : cases) {
    const Captured captured = capture(asprint_shell, command);
    EXPECT_EQ(captured.text, text) << command;
    EXPECT_EQ(captured.result, 4096) << command;
  }
}

TEST(AsprintShell, GrowsWhen256BytesAreLeft) {
  const std::pair<size_t, int32_t> cases[] = {
      {3839, 4096}, {3840, 8192}, {7935, 8192}, {7936, 12288}, {1000000, 1003520}};
  for (const auto& [length, capacity] : cases) {
    const auto captured =
        capture(asprint_shell, "head -c " + std::to_string(length) + " /dev/zero | tr '\\0' y");
    EXPECT_EQ(captured.text, std::string(length, 'y'));
    EXPECT_EQ(captured.result, capacity) << length;
  }
}

TEST(AsprintShell, NeedsItsArguments) {
  char* out = nullptr;
  EXPECT_EQ(asprint_shell(nullptr, "true"), -1);
  EXPECT_EQ(asprint_shell(&out, nullptr), -1);
  EXPECT_EQ(asprint_title_shell(nullptr, "echo x"), -1);
  EXPECT_EQ(asprint_title_shell(&out, nullptr), -1);
}

TEST(AsprintTitleShell, EscapesTheOutput) {
  const Captured title = capture(asprint_title_shell, "printf '<\"a\\n'");
  EXPECT_EQ(title.text, " title=\"&lt;&quot;a\"");
  EXPECT_EQ(title.result, 20);
  const Captured empty = capture(asprint_title_shell, "echo");
  EXPECT_EQ(empty.text, "untouched");
  EXPECT_EQ(empty.result, -1);
}

}  // namespace
