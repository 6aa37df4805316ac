// The test runner: every test must leave as many descriptors open as it found.
#include <dirent.h>
#include <gtest/gtest.h>

#include <csignal>

namespace {

int open_descriptors() {
  int count = 0;
  DIR* const dir = opendir("/proc/self/fd");
  while (readdir(dir) != nullptr) ++count;
  closedir(dir);
  return count;
}

class DescriptorCheck : public testing::EmptyTestEventListener {
  void OnTestStart(const testing::TestInfo&) override { before_ = open_descriptors(); }
  void OnTestEnd(const testing::TestInfo&) override {
    EXPECT_EQ(before_, open_descriptors()) << "a descriptor was left open, or closed twice";
  }
  int before_ = 0;
};

}  // namespace

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  signal(SIGPIPE, SIG_IGN);
  testing::UnitTest::GetInstance()->listeners().Append(new DescriptorCheck);
  return RUN_ALL_TESTS();
}
