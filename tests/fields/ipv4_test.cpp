#include <arpa/inet.h>
#include <gtest/gtest.h>

#include <cerrno>
#include <random>

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
  const struct {
    const char *text, *expected;
  } cases[] = {{"10.0.0.1", "10.0.0.1"},  {"0.0.0.0", "0.0.0.0"}, {"10.1", "10.0.0.1"},
               {"10.0.0.256", "9.8.7.6"}, {"", "9.8.7.6"},        {"255.255.255.255", "9.8.7.6"}};
  for (const auto& c : cases) {
    uint32_t value = 5;
    EXPECT_EQ(scan_ipv4(c.text, &value, kFallback), 1) << c.text;
    EXPECT_EQ(text_of(value), c.expected);
    EXPECT_EQ(scan_ipv4(c.text, &value, kFallback), 0) << "the same again, the fallback too";
    EXPECT_EQ(text_of(value), c.expected);
    EXPECT_EQ(scan_ipv4(nullptr, &value, 6) + scan_ipv4(c.text, nullptr, 6), 0);
  }
}

TEST(Ipv4, ScansWhatIsPrinted) {
  std::mt19937 random(409);
  for (int i = 0; i < 10000; ++i) {
    const auto address = static_cast<uint32_t>(random());
    uint32_t value = ~address;
    ASSERT_EQ(scan_ipv4(text_of(address).c_str(), &value, address), 1);
    ASSERT_EQ(value, address) << text_of(address);
  }
}

TEST(Ipv4, ScansANetmaskAndAlwaysStores) {
  const struct {
    const char* text;
    uint32_t lowest, highest;
    const char* expected;
  } cases[] = {{"255.255.255.0", 0, 32, "255.255.255.0"}, {"255.0.255.0", 0, 32, "255.0.0.0"},
               {"255.255.255.0", 8, 16, "255.255.0.0"},   {"128.0.0.0", 8, 16, "255.0.0.0"},
               {"0.255.255.255", 0, 32, "0.0.0.0"},       {"bad", 8, 30, "255.255.255.252"},
               {"bad", 8, 99, "255.255.255.255"},         {"255.0.0.0", 99, 99, "255.255.255.255"},
               {"255.0.0.0", 24, 16, "255.255.0.0"},      {"255.255.255.0", 24, 0, "0.0.0.0"}};
  for (const auto& c : cases) {
    uint32_t value = 5;
    EXPECT_EQ(scan_ipv4_netmask(c.text, &value, c.lowest, c.highest), 1) << c.text;
    EXPECT_EQ(text_of(value), c.expected) << c.text;
    EXPECT_EQ(scan_ipv4_netmask(c.text, &value, c.lowest, c.highest), 1) << "though unchanged";
    EXPECT_EQ(scan_ipv4_netmask(nullptr, &value, 1, 1), 0);
    EXPECT_EQ(text_of(value), c.expected);
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
  const struct {
    const char *address, *mask, *expected;
    int32_t result = 1;
  } cases[] = {
      {"10.0.1.0", "255.255.255.0", "10.0.1.1"},
      {"10.0.1.255", "255.255.255.0", "10.0.1.254"},
      {"10.0.1.7", "255.255.255.0", "10.0.1.7"},
      {"10.0.1.4", "255.255.255.254", "10.0.1.4"},
      {"10.0.1.5", "255.255.255.254", "10.0.1.4"},
      {"10.0.1.5", "255.255.255.255", "10.0.1.5"},
      {"255.255.255.254", "0.0.0.0", "255.255.255.254"},
      {"255.255.255.254", "255.255.255.255", "255.255.255.254"},
      {"0.0.0.0", "255.255.255.0", "9.8.7.6", 0},
      {"255.255.255.255", "255.0.0.0", "9.8.7.6", 0},
  };
  for (const auto& c : cases) {
    uint32_t value = kFallback;
    EXPECT_EQ(valid_ipv4_addr(&value, inet_addr(c.address), inet_addr(c.mask)), c.result);
    EXPECT_EQ(text_of(value), c.expected) << c.address << " under " << c.mask;
    EXPECT_EQ(valid_ipv4_addr(nullptr, inet_addr(c.address), inet_addr(c.mask)), 0);
  }
}

TEST(Ipv4, ScansAnAddressWithPrefix) {
  const struct {
    const char *text, *plain, *masked;
  } cases[] = {
      {"10.1.2.3", "10.1.2.3/32", "10.1.2.3/32"},
      {"10.1.2.3/24", "10.1.2.3/24", "10.1.2.0/24"},
      {"10.1.2.3/", "10.1.2.3/0", "0.0.0.0/0"},
      {"10.1.2.3/ 24", "10.1.2.3/0", "0.0.0.0/0"},
      {"10.1.2.3/24junk", "10.1.2.3/24", "10.1.2.0/24"},
      {"10.1.2.3/99", "10.1.2.3/32", "10.1.2.3/32"},
      {"10.1.2.3/4294967304", "10.1.2.3/8", "10.0.0.0/8"},
      {"10.1.2.3/8/24", "9.8.7.6/24", "9.8.7.0/24"},
      {"0.0.0.0/24", "0.0.0.0/0", "0.0.0.0/0"},
      {"0.0.0.1/8", "0.0.0.1/8", "0.0.0.0/8"},
      {"255.255.255.255/24", "9.8.7.6/24", "9.8.7.0/24"},
      {"bad", "9.8.7.6/32", "9.8.7.6/32"},
      {"/", "9.8.7.6/0", "0.0.0.0/0"},
  };
  for (const auto& c : cases) {
    for (const uint32_t mask : {0, 2}) {
      ipv4_cidr value = {5, 5};
      EXPECT_EQ(scan_ipv4cidr(c.text, &value, kFallback, mask), 1) << c.text;
      EXPECT_EQ(text_of(value), mask == 0 ? c.plain : c.masked) << c.text;
      EXPECT_EQ(scan_ipv4cidr(c.text, &value, kFallback, mask), 0) << c.text;
      ++value.prefix;
      EXPECT_EQ(scan_ipv4cidr(nullptr, &value, 6, 0) + scan_ipv4cidr(c.text, nullptr, 6, 0), 0);
      EXPECT_EQ(scan_ipv4cidr(c.text, &value, kFallback, mask), 1) << "the prefix alone";
    }
  }
  ipv4_cidr value = {5, 5};
  EXPECT_EQ(scan_ipv4cidr("bad/24", &value, 0, 0), 1);
  EXPECT_EQ(text_of(value), "0.0.0.0/0");
}

TEST(Ipv4, ItemsHoldWhatScanTakes) {
  const test::TempDir dir;
  dir.put("ip", "");
  dir.put("net", "");
  std::mt19937 random(49);
  for (uint32_t prefix = 0; prefix <= 32; ++prefix) {
    const ipv4_cidr value{static_cast<uint32_t>(random()) | htonl(1), prefix};
    ipv4_cidr read = {5, 5};
    ASSERT_GT(update_ipv4box_item(dir.c_str(), "ip", &value.address), 8);
    ASSERT_GT(update_ipv4cidr_item(dir.c_str(), "net", &value), 8);
    ASSERT_EQ(dir.get("ip"), text_of(value.address) + "\n");
    ASSERT_EQ(dir.get("net"), text_of(value) + "\n");
    ASSERT_EQ(rd_ipv4cidr_item(dir.c_str(), "net", &read, 7), 0);
    ASSERT_EQ(text_of(read), text_of(value));
    ASSERT_EQ(rd_ipv4box_item(dir.c_str(), "ip", &read.address, 7), 0);
    ASSERT_EQ(text_of(read), text_of(value));
    ASSERT_EQ(update_ipv4box_item(dir.c_str(), "ip", &read.address), 0);
    ASSERT_EQ(update_ipv4cidr_item(dir.c_str(), "net", &read), 0);
  }
  const ipv4_cidr large{inet_addr("100.100.100.100"), 4111222333};
  EXPECT_EQ(update_ipv4cidr_item(dir.c_str(), "net", &large), 19);
  EXPECT_EQ(dir.get("net"), "100.100.100.100/41\n") << "no limit but the item's";
  EXPECT_EQ(update_ipv4cidr_item(dir.c_str(), "net", nullptr), -1);
  EXPECT_EQ(update_ipv4box_item(dir.c_str(), "ip", nullptr), -1);
}

TEST(Ipv4, AnUnreadableOrInvalidItemGivesTheFallback) {
  const test::TempDir dir;
  const struct {
    const char* stored;  // null: missing
    int32_t result;
    std::vector<test::Answer> answers;
    const char *cidr, *address;
  } cases[] = {
      {nullptr, 1, {}, "9.8.7.6/32", "9.8.7.6"},
      {"", 0, {}, "9.8.7.6/32", "9.8.7.6"},
      {"100.100.100.1000/32", 0, {}, "9.8.7.6/3", "100.100.100.100"},
      {"100.100.100.100/321", 0, {}, "100.100.100.100/32", "100.100.100.100"},
      // The bytes ahead of the error would be an address.
      {"10.0.0.1 /24", 1, {{0, 9}, {EIO}}, "9.8.7.6/32", "9.8.7.6"},
  };
  for (const auto& c : cases) {
    if (c.stored != nullptr) dir.put("ip", c.stored);
    ipv4_cidr value = {5, 5};
    uint32_t address = 5;
    {
      const test::ScriptedIo io(test::next_descriptor(), c.answers);
      EXPECT_EQ(rd_ipv4cidr_item(dir.c_str(), "ip", &value, kFallback), c.result) << c.stored;
    }
    const test::ScriptedIo io(test::next_descriptor(), c.answers);
    EXPECT_EQ(rd_ipv4box_item(dir.c_str(), "ip", &address, kFallback), c.result) << c.stored;
    EXPECT_EQ(text_of(value), c.cidr);
    EXPECT_EQ(text_of(address), c.address);
  }
  EXPECT_EQ(rd_ipv4box_item(dir.c_str(), "ip", nullptr, 7), 1);
  EXPECT_EQ(rd_ipv4cidr_item(dir.c_str(), "ip", nullptr, 7), 1);
}

}  // namespace
