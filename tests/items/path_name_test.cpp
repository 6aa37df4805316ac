#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <cerrno>

#include "support/temp_dir.h"
#include "tavik.h"

namespace {

std::string joined;

int32_t note_path(const char* path, int32_t first, uint32_t second) {
  joined = path;
  return first + static_cast<int32_t>(second);
}

TEST(PathName, JoinsWithOneSlashAtTheSeam) {
  const struct {
    const char *directory, *name, *path;
  } cases[] = {
      {"a/b", "c", "a/b/c"},  {"a/b/", "c", "a/b/c"}, {"a/b/", "/c", "a/b/c"},
      {"a/b", "/c", "a/b/c"}, {"a//", "/b", "a//b"},  {"a", "//b", "a//b"},
      {"", "c", "c"},         {"", "/c", "/c"},       {"", "", ""},
      {"a/b", "", "a/b/"},    {"a/b/", "", "a/b/"},   {"/", "c", "/c"},
      {"/", "/c", "/c"},      {"/", "", "/"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(_func_path_name(note_path, c.directory, c.name, -40, 82), 42);
    EXPECT_EQ(joined, c.path);
  }
}

TEST(PathName, NullArgumentsMakeNoCallAndLeaveErrno) {
  joined = "untouched";
  errno = 123;
  EXPECT_EQ(_func_path_name(nullptr, "a", "b", 1, 1), -1);
  EXPECT_EQ(_func_path_name(note_path, nullptr, "b", 1, 1), -1);
  EXPECT_EQ(_func_path_name(note_path, "a", nullptr, 1, 1), -1);
  EXPECT_EQ(open_path_name(nullptr, "b", O_RDONLY, 0), -1);
  EXPECT_EQ(remove_item("a", nullptr), -1);
  EXPECT_EQ(stat_item(nullptr, nullptr), -1);
  EXPECT_EQ(joined, "untouched");
  EXPECT_EQ(errno, 123);
}

TEST(PathName, OpensStatsAndRemovesWhatTheAddressNames) {
  const test::TempDir dir;
  const mode_t saved = umask(0);
  const int fd = open_path_name(dir.c_str(), "new", O_WRONLY | O_CREAT | O_EXCL, 0640);
  umask(saved);
  ASSERT_GE(fd, 0);
  close(fd);
  struct stat status {};
  ASSERT_EQ(stat(dir.path("new").c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 07777, 0640U);
  EXPECT_EQ(stat_item(dir.c_str(), "new"), 0);
  EXPECT_EQ(remove_item(dir.c_str(), "new"), 0);
  EXPECT_EQ(stat_item(dir.c_str(), "new"), -1);
  EXPECT_EQ(remove_item(dir.c_str(), "new"), -1);
  EXPECT_EQ(errno, ENOENT);
  ASSERT_EQ(symlink("nowhere", dir.path("dangling").c_str()), 0);
  EXPECT_EQ(stat_item(dir.c_str(), "dangling"), -1);
  EXPECT_EQ(remove_item(dir.c_str(), "dangling"), 0);
  EXPECT_EQ(open_path_name(dir.c_str(), "new", O_RDONLY, 0), -1);
}

}  // namespace
