// The two ways of linking a page: with libcrypt, and without.
#include <gtest/gtest.h>

#include "support/page_process.h"

namespace {

// Whether the program needs libcrypt: only its dynamic section can hold that name.
bool needs_libcrypt(const std::string& page) {
  return test::run_page("/usr/bin/grep", {{}, "", 1, {"-q", "libcrypt[.]so", page}}).status == 0;
}

TEST(CryptLinkage, WithAndWithoutLibcrypt) {
  const std::string hash = test::page_program("hash"), echo = test::page_program("echo_nocrypt");
  EXPECT_TRUE(needs_libcrypt(hash));
  EXPECT_EQ(test::run_page(hash, {{}, "", 1, {"secret", "secret"}}).output, "34 match\n");
  EXPECT_EQ(test::run_page(hash, {{}, "", 1, {"secret", "Secret"}}).output, "34 differ\n");
  EXPECT_FALSE(needs_libcrypt(echo));
  EXPECT_EQ(test::run_page(echo, {{{"REQUEST_METHOD", "GET"}}, "", 1, {}}).output, "result 0\n");
}

}  // namespace
