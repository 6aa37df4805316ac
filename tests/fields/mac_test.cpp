#include <gtest/gtest.h>
#include <net/if.h>
#include <sched.h>
#include <sys/ioctl.h>
#include <sys/socket.h>

#include <cstring>

#include "support/child.h"
#include "support/no_descriptors.h"
#include "tavik.h"

namespace {

sockaddr record(const char (&bytes)[7]) {
  sockaddr address = {};
  address.sa_family = 772;
  memcpy(address.sa_data, bytes, 6);
  return address;
}

std::string asked(const char* interface, uint32_t size) {
  char buffer[32] = "unchanged";
  EXPECT_EQ(if_hwaddr_ntop(interface, ':', buffer, size), buffer);
  return buffer;
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
  const struct {
    const char *text, *expected;
    int32_t valid = 1;
  } cases[] = {{"00-11-22-AA-BB-CC", "00:11:22:AA:BB:CC"},
               {"00:11:22:aa:bb:cc", "00:11:22:AA:BB:CC"},
               {"001122AABBCC", "00:11:22:AA:BB:CC"},
               {"0.11 22/aa,bb_cc", "00:11:22:AA:BB:CC"},
               {"1!2&3", "01:02:03:00:00:00"},
               {"AA::BB", "AA:00:BB:00:00:00"},
               {"ABC", "AB:0C:00:00:00:00"},
               {"-AA", "00:AA:00:00:00:00"},
               {"aF:Fa:9:0G1:@`/", "AF:FA:09:00:01:00"},
               {"1\xC3\x81:2", "01:00:00:02:00:00"},
               {"00:11:22:33:44:55:66", "00:11:22:33:44:55"},
               {"000000FFFFFF", "00:00:00:FF:FF:FF"},
               {"FFFFFFFFFFFE", "FF:FF:FF:FF:FF:FE"},
               {"FFFFFFFFFFFF", "FF:FF:FF:FF:FF:FF", 0},
               {"::::::1", "00:00:00:00:00:00", 0},
               {"", "00:00:00:00:00:00", 0},
               {nullptr, "00:00:00:00:00:00", 0}};
  for (const auto& c : cases) {
    char text[18];
    sockaddr address = record("\x07\x07\x07\x07\x07\x07");
    EXPECT_EQ(scan_macaddr(&address, c.text), 1);
    EXPECT_STREQ(mac_ntop(&address, ':', text, sizeof text), c.expected);
    EXPECT_EQ(mac_isvalid(&address), c.valid) << c.expected;
    address.sa_family = 772;
    EXPECT_EQ(scan_macaddr(&address, c.text), 0);
    EXPECT_EQ(address.sa_family, 1) << "with an address that is the same, too";
    ++address.sa_data[5];
    EXPECT_EQ(scan_macaddr(&address, c.text), 1) << "the last byte alone";
  }
  EXPECT_EQ(scan_macaddr(nullptr, "001122334455") + mac_isvalid(nullptr), 0);
}

TEST(IfHwaddrNtop, AsksTheKernel) {
  if (if_nametoindex("lo") == 0) GTEST_SKIP() << "no loopback interface";
  EXPECT_EQ(asked("lo", 32), "00:00:00:00:00:00");
  EXPECT_EQ(asked("lo", 6), "00:00");
  EXPECT_EQ(asked("lo", 0), "unchanged");
  EXPECT_EQ(asked("no-such-interface", 32), "");
  EXPECT_EQ(asked(nullptr, 32), "");
  EXPECT_EQ(if_hwaddr_ntop("lo", ':', nullptr, 32), nullptr);
  const test::NoDescriptors no_socket;
  EXPECT_EQ(asked("lo", 32), "");
}

TEST(IfHwaddrNtop, FormatsWhatTheKernelHolds) {
  // In a network of its own the loopback interface may be given an address.
  const test::ChildAnswer answer = test::in_child([] {
    if (unshare(CLONE_NEWNET) != 0 && unshare(CLONE_NEWUSER | CLONE_NEWNET) != 0) return 1;
    ifreq request = {};
    strcpy(request.ifr_name, "lo");
    request.ifr_hwaddr = record("\x02\x9A\xBC\xDE\xF0\x01");
    if (ioctl(socket(AF_INET, SOCK_DGRAM, 0), SIOCSIFHWADDR, &request) != 0) return 1;
    fputs(asked("lo", 18).c_str(), stdout);
    return 0;
  });
  if (answer.status == 1) GTEST_SKIP() << "no network namespace to be had";
  EXPECT_EQ(answer.output, "02:9A:BC:DE:F0:01");
}

}  // namespace
