// The two ways of linking a page: with libcrypt, and without.
#include <gtest/gtest.h>

#include "support/page_process.h"

namespace {

// Whether the program names a library: only its dynamic section, or its loader, can.
bool names(const std::string& page, const std::string& library) {
  return test::run_page("/usr/bin/grep", {{}, "", 1, {"-q", library, page}}).status == 0;
}

TEST(CryptLinkage, WithAndWithoutLibcrypt) {
  const std::string hash = test::page_program("hash"), echo = test::page_program("echo_nocrypt");
  EXPECT_TRUE(names(hash, "libcrypt[.]so") || names(hash, "uClibc")) << "uClibc has crypt() itself";
  EXPECT_EQ(test::run_page(hash, {{}, "", 1, {"secret", "secret"}}).output, "34 match\n");
  EXPECT_EQ(test::run_page(hash, {{}, "", 1, {"secret", "Secret"}}).output, "34 differ\n");
  EXPECT_FALSE(names(echo, "libcrypt[.]so"));
  EXPECT_EQ(test::run_page(echo, {{{"REQUEST_METHOD", "GET"}}, "", 1, {}}).output, "result 0\n");
}

}  // namespace
