#include <gtest/gtest.h>
#include <net/if.h>
#include <sys/ioctl.h>

#include <cstring>

#include "support/no_descriptors.h"
#include "support/scripted_ioctl.h"
#include "tavik.h"

namespace {

sockaddr record(const char (&bytes)[7]) {
  sockaddr address = {};
  address.sa_family = 772;
  memcpy(address.sa_data, bytes, 6);
  return address;
}

TEST(MacNtop, CutsTheTextToTheBuffer) {
  const sockaddr address = record("\x00\x9A\x22\xAB\xBB\xFF");
  for (uint32_t size = 0; size <= 20; ++size) {
    std::string buffer(21, '#');
    const std::string text =
        size == 0 ? "" : std::string("00-9A-22-AB-BB-FF", std::min(size - 1, 17U)) + '\0';
    EXPECT_EQ(mac_ntop(&address, '-', buffer.data(), size), buffer.data());
    EXPECT_EQ(buffer, text + std::string(21 - text.size(), '#'));
  }
  EXPECT_EQ(mac_ntop(&address, '-', nullptr, 18), nullptr);
}

TEST(ScanMacaddr, MakesAnAddressOfEveryText) {
  const std::tuple<const char*, const char*, int32_t> cases[] = {
      {"00-11-22-AA-BB-CC", "00:11:22:AA:BB:CC", 1},
      {"001122AABBCC", "00:11:22:AA:BB:CC", 1},
      {"0.11 22/aa,bb_cc", "00:11:22:AA:BB:CC", 1},
      {"1!2&3", "01:02:03:00:00:00", 1},
      {"AA::BB", "AA:00:BB:00:00:00", 1},
      {"ABC", "AB:0C:00:00:00:00", 1},
      {"-AA", "00:AA:00:00:00:00", 1},
      {"aF:Fa:9:0G1:@`/", "AF:FA:09:00:01:00", 1},
      {"1\xC3\x81:2", "01:00:00:02:00:00", 1},
      {"000000FFFFFF", "00:00:00:FF:FF:FF", 1},
      {"FFFFFFFFFFFE", "FF:FF:FF:FF:FF:FE", 1},
      {"FFFFFFFFFFFF", "FF:FF:FF:FF:FF:FF", 0},
      {"::::::1", "00:00:00:00:00:00", 0},
      {nullptr, "00:00:00:00:00:00", 0}};
  for (const auto& [text, expected, valid] : cases) {
    char shown[18];
    sockaddr address = record("\x07\x07\x07\x07\x07\x07");
    EXPECT_EQ(scan_macaddr(&address, text), 1);
    EXPECT_STREQ(mac_ntop(&address, ':', shown, sizeof shown), expected);
    EXPECT_EQ(mac_isvalid(&address), valid) << expected;
    address.sa_family = 772;
    EXPECT_EQ(scan_macaddr(&address, text), 0);
    EXPECT_EQ(address.sa_family, 1) << "with an address that is the same, too";
    ++address.sa_data[5];
    EXPECT_EQ(scan_macaddr(&address, text), 1) << "the last byte alone";
  }
  EXPECT_EQ(scan_macaddr(nullptr, "001122334455") + mac_isvalid(nullptr), 0);
}

std::string asked(const char* interface, uint32_t size) {
  char buffer[32] = "unchanged";
  EXPECT_EQ(if_hwaddr_ntop(interface, ':', buffer, size), buffer);
  return buffer;
}

TEST(IfHwaddrNtop, AsksTheKernel) {
  const auto answer = [](int, unsigned long request, void* argument) -> std::optional<int> {
    auto* const query = static_cast<ifreq*>(argument);
    if (request != SIOCGIFHWADDR || strcmp(query->ifr_name, "fifteen-bytes-o") != 0) return {};
    query->ifr_hwaddr = record("\x02\x9A\xBC\xDE\xF0\x01");
    return 0;
  };
  const test::ScriptedIoctl device(answer);
  EXPECT_EQ(asked("fifteen-bytes-of-it", 32), "02:9A:BC:DE:F0:01");
  EXPECT_EQ(asked("fifteen-bytes-o", 6), "02:9A");
  EXPECT_EQ(asked("fifteen-bytes-o", 0), "unchanged");
  EXPECT_EQ(asked("no-such", 32) + asked(nullptr, 32), "");
  EXPECT_EQ(if_hwaddr_ntop("lo", ':', nullptr, 32), nullptr);
  if (if_nametoindex("lo") == 0) GTEST_SKIP() << "no loopback interface";
  EXPECT_EQ(asked("lo", 32), "00:00:00:00:00:00");
  const test::NoDescriptors no_socket;
  EXPECT_EQ(asked("lo", 32), "");
}

}  // namespace
