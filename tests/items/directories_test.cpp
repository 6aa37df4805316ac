#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cerrno>

#include "support/child.h"
#include "support/temp_dir.h"
#include "tavik.h"

// A file system that knows no mode 0765.
extern "C" int chmod(const char* path, mode_t mode) noexcept {
  if (mode != 0765) return fchmodat(AT_FDCWD, path, mode, 0);
  errno = EPERM;
  return -1;
}

namespace {

using std::string;

TEST(Directories, AreMadeAloneOrAsAChainUnderAnyUmask) {
  const uint32_t all = MAKE_DIR_PARENTS;
  const struct {
    string path;
    uint32_t flags;
    mode_t mask;
    int32_t mode;
    int error;      // errno, or 0 for success
    string left;    // the path's text afterwards
    string listed;  // the directories afterwards, with their modes
  } cases[] = {
      {".", 0, 022, 0700, 0, ".", "d 750 "},
      {"./n", 0, 022, -1, 0, "./n", "d 750 n 755 "},
      {"n", 0, 077, 0751, 0, "n", "d 750 n 751 "},
      {"n", 8, 0777, 0, 0, "n", "d 750 n 0 "},
      {"n", all, 022, 02775, 0, "n", "d 750 n 2775 "},
      {"n", all, 022, 0765, EPERM, "n", "d 750 n 755 "},
      {"n/b", 0, 022, -1, ENOENT, "n/b", "d 750 "},
      {"n/b/c", all, 0777, -1, 0, "n/b/c", "d 750 n 300 n/b 300 n/b/c 0 "},
      {"n/b/c", all, 0377, 0700, 0, "n/b/c", "d 750 n 700 n/b 700 n/b/c 700 "},
      {"n//b/", all, 027, 0711, 0, "n//b/", "d 750 n 750 n/b 711 "},
      {"d", ~all, 022, 0711, EEXIST, "d", "d 750 "},
      {"d//", all, 022, 0711, 0, "d//", "d 750 "},
      {"l/x", all, 022, -1, 0, "l/x", "d 750 d/x 755 "},
      {"/proc/", all, 022, 0711, 0, "/proc/", "d 750 "},
      {"f", all, 022, -1, EEXIST, "f", "d 750 "},
      {"d/x/../../f//y/z", all, 0137, -1, EEXIST, "d/x/../../f//", "d 750 d/x 740 "},
      {"", all, 022, -1, ENOENT, "", "d 750 "},
  };
  for (const auto& c : cases) {
    const test::TempDir dir;
    const test::ChildAnswer answer = test::in_child([&] {
      if (chdir(dir.c_str()) != 0 || system("mkdir -m 750 d; touch f; ln -s d l") != 0) return 99;
      string path = c.path;
      umask(c.mask);
      const int32_t result = make_directory(path.data(), c.mode, c.flags);
      printf("|%d|%s|%o|\n", result == 0 ? 0 : errno, path.c_str(), umask(022));
      return system(
          "for i in d d/x n n/b n/b/c; do stat --printf '%n %a ' $i && chmod 700 $i; done 2>&-; :");
    });
    std::ostringstream expected;
    const char* const verb = c.error == EPERM ? "set permissions of" : "create";
    if (c.error != 0) expected << "can't " << verb << " directory '" << c.left << "'";
    expected << "|" << c.error << "|" << c.left << "|" << std::oct << c.mask << "|\n" << c.listed;
    EXPECT_EQ(answer.output, expected.str());
  }
}

TEST(Directories, AreRemovedWithTheirFilesButNotAsATree) {
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
  dir.put("leaf/.hidden", "");
  EXPECT_EQ(remove_filef("%s/s%cb", leaf.c_str(), 'u'), -1) << "a directory";
  EXPECT_EQ(rmdir((leaf + "/sub").c_str()), 0);
  EXPECT_EQ(check_dir(leaf.c_str()), 0) << "nothing visible";
  EXPECT_EQ(remove_filef("%s/.hi%s", leaf.c_str(), "dden"), 0);
  EXPECT_EQ(dir.get("leaf/.hidden"), std::nullopt);
  const int32_t failed[] = {remove_dir_leaf(dir.path("none").c_str()), errno == ENOENT ? -1 : errno,
                            remove_dir_leaf(nullptr), check_dir(nullptr),
                            make_directory(nullptr, -1, 0)};
  EXPECT_THAT(failed, testing::Each(-1));
}

TEST(RdFileLine, DeliversEveryLineWithItsEnd) {
  const test::TempDir dir;
  const string path = dir.path("file"), longer = string(5000, 'x') + "\n";
  static string calls;
  const auto collect = [](uintptr_t context, char* line) {
    calls += std::to_string(context) + line;
    *line = '\0';  // the callback may write to the line
    return -1;
  };
  EXPECT_EQ(rd_file_line(nullptr, collect, 7), -1);
  EXPECT_EQ(rd_file_line(path.c_str(), collect, 7), -1);
  EXPECT_EQ(rd_file_line(dir.c_str(), collect, 7), 0) << "a read error is the end";
  dir.put("file", "a\r\n\n" + longer + string("b\0c\n d", 6));
  EXPECT_EQ(rd_file_line(path.c_str(), nullptr, 7), 0);
  EXPECT_EQ(rd_file_line(path.c_str(), collect, 7), 0);
  EXPECT_EQ(calls, "7a\r\n7\n7" + longer + "7b7 d");
}

TEST(StrReplaceChr, ReplacesBytesByTheirUnsignedValue) {
  const std::tuple<string, uint32_t, uint32_t, string> cases[] = {
      {"", 'a', 'b', ""},
      {"a/b/", '/', '_', "a_b_"},
      {"\xC3\xA4", 0xA4, 0x1BC, "\xC3\xBC"},
      {"\xC3\xA4", 0xFFFFFFA4, 'x', "\xC3\xA4"},
      {"ab", 0, 'x', "ab"},
      {"a b c", ' ', 0x100, string("a\0b\0c", 5)}};
  for (auto [text, from, to, expected] : cases) {
    str_replace_chr(text.data(), from, to);
    EXPECT_EQ(text, expected);
  }
  str_replace_chr(nullptr, 'a', 'b');
}

}  // namespace
