#include <arpa/inet.h>
#include <gtest/gtest.h>
#include <net/if.h>
#include <sys/ioctl.h>

#include <cstring>

#include "fields/scan.h"
#include "support/no_descriptors.h"
#include "support/scripted_ioctl.h"
#include "tavik.h"

// Found by the name lookup of the rows, since the record is a global one.
static std::ostream& operator<<(std::ostream& out, const ipv4_cidr& value) {
  return out << inet_ntoa({value.address}) << '/' << value.prefix;
}

namespace {

using test::expect_rows;
using test::joined;
using test::scan;

const uint32_t kFallback = inet_addr("9.8.7.6");

int32_t scan_address(const char* text, ipv4_cidr* held) {
  return scan_ipv4(text, held == nullptr ? nullptr : &held->address, kFallback);
}

TEST(Ipv4, ScansAddresses) {
  const ipv4_cidr before = {5, 5}, prefix_alone = {kFallback, 5};
  expect_rows("10.0.0.1=10.0.0.1/5|10.1=10.0.0.1/5|10.0.0.256=9.8.7.6/5|255.255.255.255=9.8.7.6/5",
              scan(before, scan_address));
  expect_rows(
      "10.1.2.3=10.1.2.3/32|10.1.2.3/24j=10.1.2.3/24|10.1.2.3/=10.1.2.3/0|0.0.0.0/24=0.0.0.0/0|"
      "10.1/4294967304=10.0.0.1/8|10.1.2.3/8/24=9.8.7.6/24|10.1.2.=9.8.7.6/32|bad/=9.8.7.6/0",
      scan(before, scan_ipv4cidr, kFallback, 0));
  expect_rows("bad/24=9.8.7.6/24", scan(prefix_alone, scan_ipv4cidr, kFallback, 0));
  expect_rows("10.1.2.3/24=10.1.2.0/24|10.1.2.3/ 24=0.0.0.0/0|0.0.0.1/8=0.0.0.0/8",
              scan(before, scan_ipv4cidr, kFallback, 2));
  expect_rows("bad/24=0.0.0.0/0", scan(before, scan_ipv4cidr, 0, 0));
}

TEST(Ipv4, ScansANetmaskAndAlwaysStores) {
  // The bounds of the prefix and a mask; the prefix that comes of it.
  expect_rows(
      "0 32 255.255.255.0=24|0 32 255.0.255.0=8|0 32 0.255.255.255=0|0 32 bad=32|"
      "8 16 255.255.255.0=16|8 16 128.0.0.0=8|24 16 255.0.0.0=16|24 16 bad=16|99 99 255.0.0.0=32",
      [](const char* row) {
        uint32_t lowest = 0, highest = 0, mask = 5;
        char text[16];
        sscanf(row, "%u %u %15s", &lowest, &highest, text);
        for (int i = 0; i < 2; ++i) {
          EXPECT_EQ(scan_ipv4_netmask(text, &mask, lowest, highest), 1) << "unchanged, too";
        }
        EXPECT_EQ(scan_ipv4_netmask(nullptr, &mask, 1, 1), 0);
        EXPECT_EQ(scan_ipv4_netmask(text, nullptr, 1, 1), 0);
        return gen_prefix(ntohl(mask));
      });
}

TEST(Ipv4, ConvertsEveryPrefixForthAndBack) {
  uint32_t mask = 0;
  for (uint32_t prefix = 0; prefix <= 32; ++prefix, mask = mask >> 1 | 0x80000000) {
    EXPECT_EQ(joined(gen_netmask(prefix), gen_prefix(mask)), joined(mask, prefix));
  }
  EXPECT_EQ(gen_prefix(0xF00000FF), 4U) << "up to the first zero bit";
  EXPECT_EQ(gen_netmask(33) & gen_netmask(UINT32_MAX), UINT32_MAX);
}

TEST(Ipv4, MovesAnAddressOffTheReservedHostParts) {
  expect_rows(
      "10.0.1.0/24=1 10.0.1.1/24|10.0.1.255/24=1 10.0.1.254/24|10.0.1.7/24=1 10.0.1.7/24|"
      "10.0.1.4/31=1 10.0.1.4/31|10.0.1.5/31=1 10.0.1.4/31|10.0.1.5/32=1 10.0.1.5/32|"
      "255.255.255.254/32=1 255.255.255.254/32|"
      "0.0.0.0/24=0 9.8.7.6/0|255.255.255.255/24=0 9.8.7.6/24",
      [](const char* text) {
        ipv4_cidr value = {}, moved = {};
        scan_ipv4cidr(text, &value, INADDR_NONE, 0);
        const uint32_t mask = htonl(gen_netmask(value.prefix));
        moved = {kFallback, value.prefix};
        EXPECT_EQ(valid_ipv4_addr(nullptr, value.address, mask), 0);
        const int32_t result = valid_ipv4_addr(&moved.address, value.address, mask);
        return joined(result, moved);
      });
}

TEST(Mac, IsScannedFromEveryText) {
  expect_rows(
      "0.11 22/aa,bb_cc=00:11:22:AA:BB:CC 1|1!2&3=01:02:03:00:00:00 1|AA::BB=AA:00:BB:00:00:00 1|"
      "aF:Fa:9:0G1:@`/=AF:FA:09:00:01:00 1|1\xC3\x81:2=01:00:00:02:00:00 1|"
      "000000FFFFFF=00:00:00:FF:FF:FF 1|FFFFFFFFFFFE=FF:FF:FF:FF:FF:FE 1|"
      "FFFFFFFFFFFF=FF:FF:FF:FF:FF:FF 0|::::::1=00:00:00:00:00:00 0|=00:00:00:00:00:00 0",
      [](const char* text) {
        char shown[18];
        sockaddr address = {772, "\7\7\7\7\7\7"};
        EXPECT_EQ(scan_macaddr(&address, text), 1);
        ++address.sa_data[5];
        EXPECT_EQ(scan_macaddr(&address, text), 1) << "the last byte alone";
        address.sa_family = 772;
        EXPECT_EQ(scan_macaddr(&address, *text == '\0' ? nullptr : text), 0);
        EXPECT_EQ(address.sa_family, 1) << "with an address that is the same, too";
        return joined(mac_ntop(&address, ':', shown, sizeof shown), mac_isvalid(&address));
      });
  EXPECT_EQ(scan_macaddr(nullptr, "001122334455") + mac_isvalid(nullptr), 0);
}

TEST(Mac, OfAnInterfaceComesFromTheKernel) {
  const test::ScriptedIoctl device([](int, unsigned long request, void* argument) {
    auto* const query = static_cast<ifreq*>(argument);
    const bool is_known = strcmp(query->ifr_name, "fifteen-bytes-o") == 0;
    if (request != SIOCGIFHWADDR || !is_known) return std::optional<int>();
    query->ifr_hwaddr = {1, "\x02\x9A\xBC\xDE\xF0\x01"};
    return std::optional<int>(0);
  });
  const auto asked = [](const char* interface, uint32_t size) {
    std::string buffer(20, '#');
    EXPECT_EQ(if_hwaddr_ntop(interface, ':', buffer.data(), size), buffer.data());
    return buffer;
  };
  const std::string text = "02:9A:BC:DE:F0:01";
  for (uint32_t size = 1; size <= 20; ++size) {
    const std::string cut = text.substr(0, size - 1) + '\0';
    EXPECT_EQ(asked("fifteen-bytes-of-it", size), cut + std::string(20 - cut.size(), '#'));
  }
  EXPECT_EQ(asked("fifteen-bytes-o", 0), std::string(20, '#'));
  EXPECT_STREQ((asked("no-such", 20) + asked(nullptr, 20)).c_str(), "");
  EXPECT_EQ(if_hwaddr_ntop("lo", ':', nullptr, 32), nullptr);
  if (if_nametoindex("lo") == 0) GTEST_SKIP() << "no loopback interface";
  EXPECT_STREQ(asked("lo", 20).c_str(), "00:00:00:00:00:00");
  const test::NoDescriptors no_socket;
  EXPECT_EQ(asked("lo", 20)[0], '\0');
}

}  // namespace
