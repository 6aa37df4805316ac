#include <gtest/gtest.h>

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

struct Case {
  string path;
  uint32_t flags;
  mode_t mask;
  int32_t mode;
  int error;      // errno, or 0 for success
  string left;    // the path's text afterwards
  string listed;  // the directories afterwards, with their modes
};

void check(const Case& c) {
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
  char expected[256];
  snprintf(expected, sizeof expected, "|%d|%s|%o|\n", c.error, c.left.c_str(), c.mask);
  const string verb = c.error == EPERM ? "set permissions of" : "create";
  const string message = c.error == 0 ? "" : "can't " + verb + " directory '" + c.left + "'";
  EXPECT_EQ(answer.output, message + expected + c.listed);
}

TEST(MakeDirectory, MakesOneOrAChainUnderAnyUmask) {
  const uint32_t all = MAKE_DIR_PARENTS;
  const Case cases[] = {
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
      {"d", all, 022, 0765, 0, "d", "d 750 "},
      {"d//", all, 022, 0711, 0, "d//", "d 750 "},
      {"l/x", all, 022, -1, 0, "l/x", "d 750 d/x 755 "},
      {"/proc/", all, 022, 0711, 0, "/proc/", "d 750 "},
      {"f", all, 022, -1, EEXIST, "f", "d 750 "},
      {"d/x/../../f//y/z", all, 0137, -1, EEXIST, "d/x/../../f//", "d 750 d/x 740 "},
      {"", all, 022, -1, ENOENT, "", "d 750 "},
  };
  for (const Case& c : cases) check(c);
  EXPECT_EQ(make_directory(nullptr, -1, all), -1);
}

}  // namespace
