#include <arpa/inet.h>
#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <linux/if_tun.h>
#include <linux/mii.h>
#include <linux/sockios.h>
#include <net/if.h>
#include <sched.h>
#include <sys/ioctl.h>

#include "support/capture.h"
#include "support/child.h"
#include "support/no_descriptors.h"
#include "support/rows.h"
#include "support/scripted_io.h"
#include "support/scripted_ioctl.h"
#include "tavik.h"

namespace {

using std::string;

// All bytes of a record in their order: "." is a word of 0, "-" one that nobody has written.
int32_t dump(const iface_info* info) {
  for (const iface_address* part : {&info->address, &info->netmask}) {
    for (const uint32_t w : part->words) printf(w == 0 ? "." : w + 1 == 0 ? "-" : "%x ", ntohl(w));
  }
  printf("%x; ", info->flags);
  return -1;
}

void state(const char* name) {
  iface_info info;
  memset(&info, 0xFF, sizeof info);
  const int32_t result = get_interface(name, &info);
  printf("%d %d ", result, cfg_interface(&info, result));
  dump(&info);
}

int32_t show(const ifreq* request, int32_t number) {
  const auto* const in = reinterpret_cast<const sockaddr_in*>(&request->ifr_addr);
  printf("%d:%s=%s ", number, request->ifr_name, inet_ntoa(in->sin_addr));
  return -1;
}

TEST(Interfaces, AreToldAsFarAsTheKernelAnswers) {
  unsigned long refused = 0;
  const test::ScriptedIoctl kernel([&](int, unsigned long request, void* argument) {
    auto& wish = *static_cast<ifreq*>(argument);
    const bool long_name = strcmp(wish.ifr_name, "abcdefghijklmno") == 0;
    if (long_name) wish.ifr_flags = static_cast<short>(0x9002);
    // Of several addresses under one name, the kernel gives the netmask of the one it gets.
    if (request == SIOCGIFNETMASK) printf("%d", wish.ifr_addr.sa_family), show(&wish, 0);
    if (request == refused) return std::optional<int>(-1);
    return long_name ? std::optional<int>(request == SIOCGIFFLAGS ? 0 : -1) : std::nullopt;
  });
  const string loopback = "20:lo=127.0.0.1 0 0 2000000 7f000001 .....";
  const std::pair<unsigned long, string> cases[] = {{0, loopback + "2000000 ff000000 .....49; "},
                                                    {SIOCGIFNETMASK, loopback + ".......49; "},
                                                    {SIOCGIFADDR, "0 1 ..............49; "},
                                                    {SIOCGIFFLAGS, "-1 -1 --------------0; "}};
  for (const auto& [request, expected] : cases) {
    refused = request;
    EXPECT_EQ(test::printed([] { state("lo"); }), expected);
  }
  refused = SIOCGIFCONF;
  EXPECT_EQ(read_interface_conf(nullptr, show), -1);
  EXPECT_EQ(test::printed([] {
              for (const char* name : {"abcdefghijklmnopq", "eth+", ""}) state(name);
              const test::NoDescriptors none;
              state("lo");
              printf("%d %d ", read_interface_conf("", show), read_interface6_conf("lo", dump));
              printf("%d %d", get_link_status("lo", 0), set_link_pwrdown("lo", 0, 1));
            }),
            "0 1 ..............9002; -1 -1 --------------0; -1 -1 --------------0; "
            "-1 -1 --------------0; -1 -1 -1 -1");
  iface_info info = {};
  EXPECT_EQ(get_interface(nullptr, &info) + get_interface("lo", nullptr), -2);
  for (const int status : {-1, 7}) EXPECT_EQ(cfg_interface(&info, status), status);
  for (const int family : {0, 1, 2, 3, 8, 10, 11, 18, 0x8002}) {
    info.address.in.sin_family = static_cast<sa_family_t>(family);
    EXPECT_EQ(cfg_interface(&info, 0), family == 2 || family == 10 ? 0 : 1) << family;
  }
}

TEST(Interfaces, AreListedInABufferThatGrows) {
  const string listed = test::printed([] { read_interface_conf("lo", show); });
  EXPECT_EQ(listed.find("0:lo=127.0.0.1 "), 0U) << listed;
  uint32_t count = 0;
  const test::ScriptedIoctl kernel([&](int, unsigned long request, void* argument) {
    EXPECT_EQ(request, SIOCGIFCONF);
    auto& list = *static_cast<ifconf*>(argument);
    const auto room = static_cast<uint32_t>(list.ifc_len) / static_cast<uint32_t>(sizeof(ifreq));
    printf("%u ", room);
    for (uint32_t i = 0; i < std::min(room, count); ++i) {
      list.ifc_req[i] = {};
      snprintf(list.ifc_req[i].ifr_name, IFNAMSIZ, "eth%u", i);
    }
    list.ifc_len = static_cast<int>(std::min(room, count) * sizeof(ifreq));
    return std::optional<int>(0);
  });
  const std::tuple<uint32_t, const char*, const char*> cases[] = {
      {0, nullptr, "30 "},
      {2, nullptr, "30 0:eth0=0.0.0.0 1:eth1=0.0.0.0 "},
      {2, "", "30 0:eth0=0.0.0.0 1:eth1=0.0.0.0 "},
      {29, "eth4", "30 0:eth4=0.0.0.0 "},
      {30, "eth4", "30 40 0:eth4=0.0.0.0 "},
      {41, "eth4", "30 40 50 0:eth4=0.0.0.0 1:eth40=0.0.0.0 "}};
  for (const auto& [interfaces, prefix, expected] : cases) {
    count = interfaces;
    EXPECT_EQ(test::printed([&] { EXPECT_EQ(read_interface_conf(prefix, show), 0); }), expected);
  }
  EXPECT_EQ(test::printed([] { EXPECT_EQ(read_interface_conf("", nullptr), 0); }), "30 40 50 ");
}

constexpr int kRefused = 77;

// Runs body in a child whose network is its own: lo, up, and a tap device without an address.
template <typename Body>
test::ChildAnswer in_private_network(Body body) {
  return test::in_child([&] {
    if (unshare(CLONE_NEWNET) != 0 && unshare(CLONE_NEWUSER | CLONE_NEWNET) != 0) return kRefused;
    ifreq wish = {"abcdefghijklmno", {}};
    wish.ifr_flags = IFF_TAP;
    if (ioctl(open("/dev/net/tun", O_RDWR), TUNSETIFF, &wish) != 0) return kRefused;
    wish = {"lo", {}};
    wish.ifr_flags = IFF_UP;
    return ioctl(socket(AF_INET, SOCK_DGRAM, 0), SIOCSIFFLAGS, &wish) == 0 ? body() : kRefused;
  });
}

TEST(Interfaces, OfARealKernelWithManyAddresses) {
  const test::ChildAnswer answer = in_private_network([] {
    for (const char* name : {"lo", "abcdefghijklmnopq", "eth0"}) state(name);
    for (int count = 2; count <= 40; ++count) {
      ifreq wish = {};
      snprintf(wish.ifr_name, IFNAMSIZ, "lo:%d", count);
      sockaddr_in address = {AF_INET, 0, {htonl(0x0A000000U + static_cast<unsigned>(count))}, {}};
      memcpy(&wish.ifr_addr, &address, sizeof address);
      ioctl(socket(AF_INET, SOCK_DGRAM, 0), SIOCSIFADDR, &wish);
      if (count == 29 || count == 30 || count == 40) read_interface_conf("lo:4", show);
    }
    state("lo:2");
    return read_interface_conf(nullptr,
                               [](const ifreq*, int32_t i) { return i > 38 ? puts("") : 0; });
  });
  if (answer.status == kRefused) GTEST_SKIP() << "no private network on this machine";
  EXPECT_EQ(answer.output,
            "0 0 2000000 7f000001 .....2000000 ff000000 .....49; "
            "0 1 ..............1002; -1 -1 --------------0; 0:lo:4=10.0.0.4 "
            "0:lo:4=10.0.0.4 0:lo:4=10.0.0.4 1:lo:40=10.0.0.40 "
            "0 0 2000000 a000002 .....2000000 ff000000 .....49; \n");
  EXPECT_EQ(answer.status, 0);
}

TEST(Interfaces, Ipv6AddressesOfARealKernel) {
  const test::ChildAnswer answer = in_private_network([] {
    struct {
      uint8_t address[16];
      uint32_t prefix, index, spare[4];
    } const host = {{0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1}, 128, 1, {}},
            link = {{0xFE, 0x80, 1, 2, 3, 4, 0, 0, 0, 0, 0, 0, 0, 0, 10, 11}, 64, 1, {}};
    const auto settled = [](const iface_info* info) {
      iface_info copy = *info;
      copy.netmask.words[2] &= ~0x40U;  // the kernel may still be looking for duplicates
      return dump(&copy);
    };
    const int query = socket(AF_INET6, SOCK_DGRAM, 0);
    if (read_interface6_conf("lo", settled) != 1) return kRefused;
    if (ioctl(query, SIOCSIFADDR, &link) != 0) return kRefused;
    for (const char* name : {"lo", "l", "abc"}) printf("%d ", read_interface6_conf(name, nullptr));
    return ioctl(query, SIOCDIFADDR, &host) == 0 ? read_interface6_conf("lo", settled) : kRefused;
  });
  if (answer.status == kRefused) GTEST_SKIP() << "no private network, or no IPv6 in it";
  EXPECT_EQ(answer.output,
            "a000000 ....1 10000000 1000000 80000000 80000000 ....0; 2 0 0 "
            "a000000 .fe800102 3040000 .a0b 20000000 1000000 40000000 80000000 ....0; ");
  EXPECT_EQ(answer.status, 1);
}

TEST(Interfaces, Ipv6AddressesStandInWholeLinesOfTheFirst4095Bytes) {
  const string eth = "fe800000000000000203040506070809 02 40 20 80     eth0\n";
  const string lo = "00000000000000000000000000000001 01 80 10 80       lo\n";
  string full;  // the last byte within the limit is a line's end
  for (int i = 0; i < 75; ++i) full += eth;
  full.insert(0, 4095 - full.size(), '\n');
  const struct {
    string text;
    int32_t of_eth0, of_all, error = 0;
  } cases[] = {{eth + lo + eth, 2, 3},
               {eth + lo.substr(0, lo.size() - 1), 1, 1},
               {"\n" + eth.substr(0, 40) + "\ng" + eth + " " + eth, 1, 1},
               {eth.substr(0, eth.size() - 5) + "abcdefghijklmnopq\n", 0, 1},
               {eth, 0, 0, EIO},
               {full + eth, 75, 75},
               {"\n" + full, 74, 74}};
  for (const auto& c : cases) {
    const auto read = [&](const char* name, int32_t (*callback)(const iface_info*)) {
      const auto length = static_cast<ssize_t>(c.text.size());
      const test::ScriptedIo file(test::next_descriptor(), {{c.error, length, c.text.data()}, {}});
      return read_interface6_conf(name, callback);
    };
    EXPECT_EQ(test::printed([&] { EXPECT_EQ(read(nullptr, dump), c.of_all); }), "") << c.text;
    EXPECT_EQ(read("eth0", nullptr), c.of_eth0) << c.text;
    string told;
    for (int i = 0; i < c.of_eth0; ++i) {
      told += "a000000 .fe800000 .2030405 6070809 20000000 2000000 40000000 80000000 ....0; ";
    }
    EXPECT_EQ(test::printed([&] { read("eth0", dump); }), told);
  }
}

// The PHY with the number 3 on eth0: its registers, and every access that came through.
struct Phy {
  uint16_t registers[2];  // BMCR, BMSR
  int accesses;           // so many accesses work, all later ones fail
  bool stuck = false;     // a write is accepted and changes nothing
  string log = "";

  int operator()(int, unsigned long request, void* argument) {
    auto& mii = *reinterpret_cast<mii_ioctl_data*>(&static_cast<ifreq*>(argument)->ifr_ifru);
    const string name = static_cast<ifreq*>(argument)->ifr_name;
    const bool there = name == "eth0" && mii.phy_id == 3 && mii.reg_num < 2;
    if (!there || accesses-- <= 0) return -1;
    const bool reads = request == SIOCGMIIREG;
    std::ostringstream value;
    value << std::hex << mii.val_in;
    log += (reads ? "r" : "w" + value.str() + ">") + std::to_string(mii.reg_num) + " ";
    if (reads) mii.val_out = registers[mii.reg_num];
    if (!reads && !stuck) registers[mii.reg_num] = mii.val_in;
    return 0;
  }
};

TEST(LinkControl, TellsTheLinkFromTheStatusRegister) {
  const auto status = [](const char* bits) {
    const test::ScriptedIoctl device(
        Phy{{0xFFFF, static_cast<uint16_t>(strtoul(bits, nullptr, 16))}, 1});
    return get_link_status("eth0", 3);
  };
  test::expect_rows("2C=1|3C=0|06=0|7829=0|FFED=1|0=0", status);
  const test::ScriptedIoctl device(Phy{{0xFFFF, 4}, 9});
  EXPECT_EQ(get_link_status("eth0", 0x10003), 1);
  {
    const test::NoDescriptors none;
    EXPECT_EQ(get_link_status("eth0", 3), -1);
  }
  const int32_t failed[] = {get_link_status("eth0", 0x103), get_link_status("eth0", UINT32_MAX),
                            get_link_status("eth1", 3), get_link_status(nullptr, 3),
                            set_link_pwrdown(nullptr, 3, 1)};
  EXPECT_THAT(failed, testing::Each(-1));
}

TEST(LinkControl, WritesOnlyWhatChangesAndReadsBack) {
  // The control register, what is asked for, and how many accesses work; the result and the log.
  const auto ask = [](const char* input) {
    unsigned control;
    int down, accesses;
    char mode = ' ';
    sscanf(input, "%x %d %d%c", &control, &down, &accesses, &mode);
    Phy phy{{static_cast<uint16_t>(control), 0}, accesses, mode == '!'};
    const test::ScriptedIoctl device(std::ref(phy));
    const int32_t result = set_link_pwrdown("eth0", 3, down);
    return test::joined(result, phy.log);
  };
  test::expect_rows(
      "1000 0 9=0 r0 |1800 -1 9=1 r0 |1000 256 9=1 r0 w1800>0 r0 |F8FF 0 9=0 r0 wf2ff>0 r0 |"
      "1800 0 9!=1 r0 w1200>0 r0 |1000 1 9!=0 r0 w1800>0 r0 |1000 1 0=-1 |1000 1 1=0 r0 |"
      "1800 0 1=1 r0 |1800 0 2=-1 r0 w1200>0 ",
      ask);
}

}  // namespace
