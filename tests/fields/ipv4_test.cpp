#include <arpa/inet.h>
#include <gtest/gtest.h>

#include <cerrno>

#include "support/scripted_io.h"
#include "support/temp_dir.h"
#include "tavik.h"

namespace {

const uint32_t kFallback = inet_addr("9.8.7.6");

std::string text_of(uint32_t address) {
  return inet_ntoa({address});
}
std::string text_of(const ipv4_cidr& value) {
  return text_of(value.address) + "/" + std::to_string(value.prefix);
}

TEST(Ipv4, ScansAnAddress) {
  const char* const cases[][2] = {{"10.0.0.1", "10.0.0.1"}, {"0.0.0.0", "0.0.0.0"},
                                  {"10.1", "10.0.0.1"},     {"10.0.0.256", "9.8.7.6"},
                                  {"", "9.8.7.6"},          {"255.255.255.255", "9.8.7.6"}};
  for (const auto& [text, expected] : cases) {
    uint32_t value = 5;
    EXPECT_EQ(scan_ipv4(text, &value, kFallback), 1) << text;
    EXPECT_EQ(scan_ipv4(text, &value, kFallback), 0) << "the same again, the fallback too";
    EXPECT_EQ(scan_ipv4(nullptr, &value, 6) + scan_ipv4(text, nullptr, 6), 0);
    EXPECT_EQ(text_of(value), expected);
  }
}

TEST(Ipv4, ScansANetmaskAndAlwaysStores) {
  const std::tuple<const char*, uint32_t, uint32_t, uint32_t> cases[] = {
      {"255.255.255.0", 0, 32, 24}, {"255.0.255.0", 0, 32, 8},   {"255.255.255.0", 8, 16, 16},
      {"128.0.0.0", 8, 16, 8},      {"0.255.255.255", 0, 32, 0}, {"bad", 8, 30, 30},
      {"255.0.0.0", 99, 99, 32},    {"255.0.0.0", 24, 16, 16},   {"255.255.255.0", 24, 0, 0}};
  for (const auto& [text, lowest, highest, prefix] : cases) {
    uint32_t value = 5;
    EXPECT_EQ(scan_ipv4_netmask(text, &value, lowest, highest), 1) << text;
    EXPECT_EQ(scan_ipv4_netmask(text, &value, lowest, highest), 1) << "though unchanged";
    EXPECT_EQ(scan_ipv4_netmask(nullptr, &value, 1, 1), 0);
    EXPECT_EQ(value, htonl(gen_netmask(prefix))) << text;
  }
  EXPECT_EQ(scan_ipv4_netmask("255.0.0.0", nullptr, 0, 32), 0);
}

TEST(Ipv4, ConvertsEveryPrefixForthAndBack) {
  uint32_t mask = 0;
  for (uint32_t prefix = 0; prefix <= 32; ++prefix, mask = mask >> 1 | 0x80000000) {
    EXPECT_EQ(gen_netmask(prefix), mask) << prefix;
    EXPECT_EQ(gen_prefix(mask), prefix);
  }
  EXPECT_EQ(gen_prefix(0xF00000FF), 4U) << "up to the first zero bit";
  EXPECT_EQ(gen_netmask(33) & gen_netmask(UINT32_MAX), UINT32_MAX);
}

TEST(Ipv4, MovesAnAddressOffTheReservedHostParts) {
  // An address, its prefix, and where it is moved to; 9 stands for nowhere.
  const std::tuple<uint32_t, uint32_t, uint32_t> cases[] = {
      {0x0A000100, 24, 0x0A000101}, {0x0A0001FF, 24, 0x0A0001FE}, {0x0A000107, 24, 0x0A000107},
      {0x0A000104, 31, 0x0A000104}, {0x0A000105, 31, 0x0A000104}, {0x0A000105, 32, 0x0A000105},
      {0xFFFFFFFE, 0, 0xFFFFFFFE},  {0xFFFFFFFE, 32, 0xFFFFFFFE}, {0x00000000, 24, 9},
      {0xFFFFFFFF, 24, 9}};
  for (const auto& [address, prefix, expected] : cases) {
    uint32_t value = htonl(9);
    const uint32_t mask = htonl(gen_netmask(prefix));
    EXPECT_EQ(valid_ipv4_addr(&value, htonl(address), mask), expected != 9) << address;
    EXPECT_EQ(ntohl(value), expected) << address << " under " << prefix;
    EXPECT_EQ(valid_ipv4_addr(nullptr, htonl(address), mask), 0);
  }
}

TEST(Ipv4, ScansAnAddressWithPrefix) {
  const std::tuple<const char*, uint32_t, std::string> cases[] = {
      {"10.1.2.3", 0, "10.1.2.3/32"},       {"10.1.2.3/24j", 0, "10.1.2.3/24"},
      {"10.1.2.3/24", 2, "10.1.2.0/24"},    {"10.1.2.3/", 0, "10.1.2.3/0"},
      {"10.1.2.3/ 24", 1, "0.0.0.0/0"},     {"10.1.2.3/99", 1, "10.1.2.3/32"},
      {"10.1/4294967304", 0, "10.0.0.1/8"}, {"10.1.2.3/8/24", 0, "9.8.7.6/24"},
      {"0.0.0.0/24", 0, "0.0.0.0/0"},       {"0.0.0.1/8", 1, "0.0.0.0/8"},
      {"10.1.2.", 0, "9.8.7.6/32"},         {"bad/", 0, "9.8.7.6/0"}};
  ipv4_cidr value = {5, 5};
  for (const auto& [text, mask, expected] : cases) {
    value = {5, 5};
    EXPECT_EQ(scan_ipv4cidr(text, &value, kFallback, mask), 1) << text;
    EXPECT_EQ(text_of(value), expected) << text;
    EXPECT_EQ(scan_ipv4cidr(text, &value, kFallback, mask), 0) << text;
    EXPECT_EQ(scan_ipv4cidr(nullptr, &value, 6, 0) + scan_ipv4cidr(text, nullptr, 6, 0), 0);
    ++value.prefix;
    EXPECT_EQ(scan_ipv4cidr(text, &value, kFallback, mask), 1) << "the prefix alone";
  }
  scan_ipv4cidr("bad/24", &value, 0, 0);
  EXPECT_EQ(text_of(value), "0.0.0.0/0") << "the fallback has no prefix either";
}

TEST(Ipv4, ItemsAreStoredOnChange) {
  const test::TempDir dir;
  dir.put("ip", "10.0.0.1\n");
  const ipv4_cidr value{inet_addr("100.100.100.100"), 4111222333};
  EXPECT_EQ(update_ipv4box_item(dir.c_str(), "ip", &value.address), 16);
  EXPECT_EQ(update_ipv4box_item(dir.c_str(), "ip", &value.address), 0);
  EXPECT_EQ(dir.get("ip"), "100.100.100.100\n");
  EXPECT_EQ(update_ipv4cidr_item(dir.c_str(), "ip", &value), 19);
  EXPECT_EQ(dir.get("ip"), "100.100.100.100/41\n") << "no limit but the item's";
  EXPECT_EQ(update_ipv4box_item(dir.c_str(), "ip", nullptr), -1);
  EXPECT_EQ(update_ipv4cidr_item(dir.c_str(), "ip", nullptr), -1);
}

// What both read functions make of an item, with their results.
std::string read_both(const test::TempDir& dir, std::vector<test::Answer> answers = {}) {
  ipv4_cidr value = {5, 5};
  uint32_t address = 5;
  answers.insert(answers.end(), answers.begin(), answers.end());
  const test::ScriptedIo io(test::next_descriptor(), answers);
  int32_t result = 10 * rd_ipv4cidr_item(dir.c_str(), "ip", &value, kFallback);
  result += rd_ipv4box_item(dir.c_str(), "ip", &address, kFallback);
  return text_of(value) + " " + text_of(address) + " " + std::to_string(result);
}

TEST(Ipv4, ItemsThatCannotBeReadGiveTheFallback) {
  const test::TempDir dir;
  EXPECT_EQ(read_both(dir), "9.8.7.6/32 9.8.7.6 11");
  dir.put("ip", "");
  EXPECT_EQ(read_both(dir), "9.8.7.6/32 9.8.7.6 0");
  dir.put("ip", "100.100.100.1000/32");
  EXPECT_EQ(read_both(dir), "9.8.7.6/3 100.100.100.100 0");
  dir.put("ip", "100.100.100.100/32");
  EXPECT_EQ(read_both(dir), "100.100.100.100/32 100.100.100.100 0");
  dir.put("ip", "10.0.0.1 /24");
  EXPECT_EQ(read_both(dir, {{0, 9}, {EIO}}), "9.8.7.6/32 9.8.7.6 11")
      << "9 bytes ahead of an error";
  EXPECT_EQ(rd_ipv4box_item(dir.c_str(), "ip", nullptr, 7), 1);
  EXPECT_EQ(rd_ipv4cidr_item(dir.c_str(), "ip", nullptr, 7), 1);
}

}  // namespace
