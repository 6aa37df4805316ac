// The two ways of linking a page, with libcrypt and without.
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "support/page_process.h"

namespace {

// Whether the program's dynamic section names libcrypt: no other part of a page holds the text.
bool needs_libcrypt(const std::string& program) {
  std::ostringstream bytes;
  bytes << std::ifstream(program, std::ios::binary).rdbuf();
  return bytes.str().find("libcrypt.so") != std::string::npos;
}

TEST(CryptLinkage, APageThatHashesFindsLibcrypt) {
  const std::string page = test::page_program("hash");
  EXPECT_TRUE(needs_libcrypt(page));
  const std::string right = test::run_page(page, {{}, "", 1, {"secret", "secret"}}).output;
  EXPECT_EQ(right.size(), 34U + sizeof " match");
  EXPECT_EQ(right.substr(34), " match\n");
  const std::string wrong = test::run_page(page, {{}, "", 1, {"secret", "Secret"}}).output;
  EXPECT_EQ(wrong.substr(34), " differ\n");
}

TEST(CryptLinkage, APageWithoutPasswordsStartsWithoutLibcrypt) {
  const std::string page = test::page_program("echo_nocrypt");
  EXPECT_FALSE(needs_libcrypt(page));
  EXPECT_EQ(test::run_page(page, {{{"REQUEST_METHOD", "GET"}, {"QUERY_STRING", "a=1"}}, "", 1, {}})
                .output,
            "echo kind 0 count 1\n[a]=[1]\nresult 7\n");
}

}  // namespace
