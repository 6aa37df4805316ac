// The test runner: every test must leave the descriptors open that it found.
#include <gtest/gtest.h>

#include <csignal>

#include "support/next_descriptor.h"

namespace {

class DescriptorCheck : public testing::EmptyTestEventListener {
  void OnTestStart(const testing::TestInfo&) override { before_ = test::next_descriptor(); }
  void OnTestEnd(const testing::TestInfo&) override {
    EXPECT_EQ(before_, test::next_descriptor()) << "a descriptor was left open, or closed twice";
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
