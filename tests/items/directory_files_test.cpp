#include <gtest/gtest.h>

#include <cerrno>

#include "support/temp_dir.h"
#include "tavik.h"

namespace {

using std::string;

int32_t collect(uintptr_t context, char* line) {
  reinterpret_cast<string*>(context)->append("[").append(line).append("]");
  *line = '\0';  // the callback may write to the line
  return -1;
}

TEST(RdFileLine, DeliversEveryLineWithItsEnd) {
  const string longer = string(5000, 'x') + "\n";
  const struct {
    string file, calls;
  } cases[] = {
      {"", ""},
      {"a\r\n\n b", "[a\r\n][\n][ b]"},
      {"a\n" + longer + "b\n", "[a\n][" + longer + "][b\n]"},
      {string("a\0b\nc\n", 6), "[a][c\n]"},
  };
  const test::TempDir dir;
  string calls;
  const auto context = reinterpret_cast<uintptr_t>(&calls);
  EXPECT_EQ(rd_file_line(nullptr, collect, context), -1);
  EXPECT_EQ(rd_file_line(dir.path("none").c_str(), collect, context), -1);
  EXPECT_EQ(rd_file_line(dir.c_str(), collect, context), 0) << "a read error is the end";
  for (const auto& c : cases) {
    dir.put("file", c.file);
    EXPECT_EQ(rd_file_line(dir.path("file").c_str(), collect, context), 0);
    EXPECT_EQ(calls, c.calls);
    EXPECT_EQ(rd_file_line(dir.path("file").c_str(), nullptr, context), 0);
    calls.clear();
  }
}

TEST(RemoveDirLeaf, RemovesFilesAndTheDirectoryButNoTree) {
  const test::TempDir dir;
  const string leaf = dir.path("leaf");
  for (const bool tree : {false, true}) {
    std::filesystem::create_directories(tree ? leaf + "/sub" : leaf);
    for (const char* name : {"a", ".hidden", "...", "%s", "b c"})
      dir.put("leaf/" + string(name), "1");
    EXPECT_EQ(check_dir(leaf.c_str()), tree ? 4 : 3);
    EXPECT_EQ(remove_dir_leaf(leaf.c_str()), tree ? -1 : 0);
    EXPECT_EQ(check_dir(leaf.c_str()), tree ? 1 : -1);
  }
  EXPECT_EQ(remove_dir_leaf(dir.path("none").c_str()), -1);
  EXPECT_EQ(errno, ENOENT);
  EXPECT_EQ(remove_dir_leaf(nullptr), -1);
  EXPECT_EQ(check_dir(nullptr), -1);
  dir.put("leaf/.hidden", "");
  EXPECT_EQ(remove_filef("%s/s%cb", leaf.c_str(), 'u'), -1) << "a directory";
  EXPECT_EQ(rmdir((leaf + "/sub").c_str()), 0);
  EXPECT_EQ(check_dir(leaf.c_str()), 0) << "nothing visible";
  EXPECT_EQ(remove_filef("%s/.hi%s", leaf.c_str(), "dden"), 0);
  EXPECT_EQ(dir.get("leaf/.hidden"), std::nullopt);
}

TEST(StrReplaceChr, ReplacesBytesByTheirUnsignedValue) {
  const struct {
    string text;
    uint32_t from, to;
    string expected;
  } cases[] = {
      {"", 'a', 'b', ""},
      {"a/b/", '/', '_', "a_b_"},
      {"\xC3\xA4", 0xA4, 0x1BC, "\xC3\xBC"},
      {"\xC3\xA4", 0xFFFFFFA4, 'x', "\xC3\xA4"},
      {"ab", 0, 'x', "ab"},
      {"a b c", ' ', 0x100, string("a\0b\0c", 5)},
  };
  for (const auto& c : cases) {
    string text = c.text;
    str_replace_chr(text.data(), c.from, c.to);
    EXPECT_EQ(text, c.expected);
  }
  str_replace_chr(nullptr, 'a', 'b');
}

}  // namespace
