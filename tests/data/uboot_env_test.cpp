#include <fcntl.h>
#include <gtest/gtest.h>
#include <mtd/mtd-user.h>
#include <sys/ioctl.h>

#include "support/child.h"
#include "support/scripted_ioctl.h"
#include "support/temp_dir.h"
#include "tavik.h"

namespace {

using namespace std::string_literals;

uint32_t bitwise_crc(const std::string& bytes) {
  uint32_t crc = UINT32_MAX;
  for (const char byte : bytes) {
    crc ^= static_cast<unsigned char>(byte);
    for (int bit = 0; bit < 8; ++bit) crc = crc & 1 ? crc >> 1 ^ 0xEDB88320 : crc >> 1;
  }
  return ~crc;
}

std::string image(const std::string& environment, uint32_t damage = 0) {
  std::string bytes;
  for (int i = 0; i < 4; ++i)
    bytes += static_cast<char>((bitwise_crc(environment) ^ damage) >> 8 * i);
  return bytes + environment;
}

void show_variables() {
  for (const char* name : {"a", "ab", "b", "A", "a=x", "none", "two", "bare", "", "late"}) {
    if (const char* value = uboot_getenv(name)) printf(" [%s]=[%s]", name, value);
  }
}

// What a process finds in a device that answers like this.
std::string found(const std::string& path, uint8_t type, uint32_t size) {
  const test::ScriptedIoctl device([=](int fd, unsigned long request, void* info) {
    static_cast<mtd_info_user*>(info)->type = type;
    static_cast<mtd_info_user*>(info)->size = size;
    return request == MEMGETINFO && (fcntl(fd, F_GETFL) & O_DSYNC) != 0 ? 0 : -1;
  });
  const auto page = [&] {
    show_variables();
    printf("%d", read_uboot_env(path.c_str()));
    show_variables();
    free_uboot_env();
    return 0;
  };
  return test::in_child(page).output;
}

TEST(UbootEnv, LooksVariablesUp) {
  const struct {
    std::string environment, expected;
  } cases[] = {
      {"a=1\0ab=2\0none=\0two=x=y\0two=z\0bare\0\0late=1\0"s,
       "0 [a]=[1] [ab]=[2] [a=x]=[1] [none]=[] [two]=[x=y]"},
      {"ab=2\0a=1\0"s, "0 [a]=[1] [ab]=[2] [a=x]=[1]"},
      {"bare\0=nameless\0b=\xFF\0\0"s, "0 [b]=[\xFF] []=[nameless]"},
      {"\0a=1\0"s, "0"},
      {"ab=2\0a=1"s, "0 [ab]=[2]"},
      {"a"s, "0"},
      {"ab=2\0"s + std::string(65536 - 4 - 5, '\xFF'), "0 [ab]=[2]"},
  };
  const test::TempDir dir;
  for (const auto& c : cases) {
    dir.put("mtd", image(c.environment));
    const auto size = static_cast<uint32_t>(c.environment.size() + 4);
    EXPECT_EQ(found(dir.path("mtd"), MTD_NORFLASH, size), c.expected);
  }
}

TEST(UbootEnv, TellsWhyThereAreNoVariables) {
  const test::TempDir dir;
  const std::string path = dir.path("mtd");
  EXPECT_EQ(found(path, MTD_NORFLASH, 8), "-1");
  dir.put("mtd", image("a=1\0"s));
  EXPECT_EQ(found(path, MTD_DATAFLASH, 8), "0 [a]=[1] [a=x]=[1]");
  EXPECT_EQ(found(path, MTD_NANDFLASH, 65537), "1");
  EXPECT_EQ(found(path, MTD_NORFLASH, 4), "2");
  EXPECT_EQ(found(path, MTD_NORFLASH, 65537), "2");
  EXPECT_EQ(found(path, MTD_NORFLASH, 9), "3");
  EXPECT_EQ(found(path, MTD_NORFLASH, 7), "5");
  dir.put("mtd", image("a=1\0"s, 0x80000000));
  EXPECT_EQ(found(path, MTD_NORFLASH, 8), "5");
}

TEST(Crc32, GivesTheCheckValue) {
  EXPECT_EQ(crc32(crc32(UINT32_MAX, "1234", 4), "56789", 5), 0x340BC6D9U);
  EXPECT_EQ(~crc32(UINT32_MAX, "123456789", 9), bitwise_crc("123456789"));
  EXPECT_EQ(crc32(7, "", 0), 7U);
}

}  // namespace
