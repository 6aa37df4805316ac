#include <arpa/inet.h>
#include <gtest/gtest.h>
#include <linux/if_tun.h>
#include <net/if.h>
#include <sched.h>
#include <sys/ioctl.h>

#include "support/child.h"
#include "support/no_descriptors.h"
#include "support/scripted_io.h"
#include "support/scripted_ioctl.h"
#include "tavik.h"

namespace {

using std::string;

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

constexpr char kLoopback[] = "0 0 2000000 7f000001 .....2000000 ff000000 .....49; ";

TEST(Interfaces, Loopback) {
  EXPECT_EQ(test::printed([] { state("lo"); }), kLoopback);
  const string listed = test::printed([] { read_interface_conf("lo", show); });
  EXPECT_EQ(listed.find("0:lo=127.0.0.1 "), 0U) << listed;
  iface_info info = {};
  EXPECT_EQ(get_interface(nullptr, &info) + get_interface("lo", nullptr), -2);
  for (const int status : {-1, 7}) EXPECT_EQ(cfg_interface(&info, status), status);
  for (const int family : {0, 1, 2, 3, 8, 10, 11, 18, 0x8002}) {
    info.address.in.sin_family = static_cast<sa_family_t>(family);
    EXPECT_EQ(cfg_interface(&info, 0), family == 2 || family == 10 ? 0 : 1) << family;
  }
}

TEST(Interfaces, StatesAndListsInAPrivateNetwork) {
  const test::ChildAnswer answer = in_private_network([] {
    for (const char* name : {"lo", "abcdefghijklmnopq", "eth0", ""}) state(name);
    const test::ScriptedIoctl watch([](int, unsigned long request, void* list) {
      const size_t bytes = request != SIOCGIFCONF ? 0 : static_cast<ifconf*>(list)->ifc_len;
      if (bytes != 0) printf("%zu ", bytes / sizeof(ifreq));
      return std::optional<int>();
    });
    for (int count = 2; count <= 40; ++count) {
      ifreq wish = {};
      snprintf(wish.ifr_name, IFNAMSIZ, "lo:%d", count);
      sockaddr_in address = {AF_INET, 0, {htonl(0x0A000000U + static_cast<unsigned>(count))}, {}};
      memcpy(&wish.ifr_addr, &address, sizeof address);
      ioctl(socket(AF_INET, SOCK_DGRAM, 0), SIOCSIFADDR, &wish);
      if (count == 29 || count == 30 || count == 40) read_interface_conf("lo:4", show);
    }
    state("lo:2");
    read_interface_conf(nullptr, [](const ifreq*, int32_t i) { return i == 39 ? puts("40") : 0; });
    return read_interface_conf("", nullptr);
  });
  if (answer.status == kRefused) GTEST_SKIP() << "no private network on this machine";
  EXPECT_EQ(answer.output, kLoopback + string("0 1 ..............1002; -1 -1 --------------0; "
                                              "-1 -1 --------------0; 30 0:lo:4=10.0.0.4 "
                                              "30 40 0:lo:4=10.0.0.4 "
                                              "30 40 50 0:lo:4=10.0.0.4 1:lo:40=10.0.0.40 "
                                              "0 0 2000000 a000002 .....2000000 ff000000 .....49; "
                                              "30 40 50 40\n30 40 50 "));
  EXPECT_EQ(answer.status, 0);
}

TEST(Interfaces, Ipv6AddressesInAPrivateNetwork) {
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
    printf("%d ", read_interface6_conf(nullptr, settled));
    return ioctl(query, SIOCDIFADDR, &host) == 0 ? read_interface6_conf("lo", settled) : kRefused;
  });
  if (answer.status == kRefused) GTEST_SKIP() << "no private network, or no IPv6 in it";
  EXPECT_EQ(answer.output,
            "a000000 ....1 10000000 1000000 80000000 80000000 ....0; 2 0 0 2 "
            "a000000 .fe800102 3040000 .a0b 20000000 1000000 40000000 80000000 ....0; ");
  EXPECT_EQ(answer.status, 1);
}

TEST(Interfaces, Ipv6ScansWholeLinesOfTheFirst4095Bytes) {
  const string eth = "fe800000000000000203040506070809 02 40 20 80     eth0\n";
  const string lo = "00000000000000000000000000000001 01 80 10 80       lo\n";
  string full;  // the last byte within the limit is a line's end
  for (int i = 0; i < 75; ++i) full += eth;
  full.insert(0, 4095 - full.size(), '\n');
  const struct {
    string text;
    int32_t of_eth0, of_all;
    int error = 0;
  } cases[] = {
      {"", 0, 0},
      {eth + lo + eth, 2, 3},
      {eth + lo.substr(0, lo.size() - 1), 1, 1},
      {eth.substr(0, eth.size() - 1), 0, 0},
      {"\n" + eth.substr(0, 40) + "\ng" + eth + " " + eth, 1, 1},
      {eth.substr(0, eth.size() - 5) + "abcdefghijklmnopq\n", 0, 1},
      {eth, 0, 0, EIO},
      {full + eth, 75, 75},
      {"\n" + full, 74, 74},
  };
  const int next_fd = test::next_descriptor();
  for (const auto& c : cases) {
    const auto length = static_cast<ssize_t>(c.text.size());
    for (const char* name : {"eth0", static_cast<const char*>(nullptr)}) {
      const test::ScriptedIo file(next_fd, {{c.error, length, c.text.data()}, {}});
      EXPECT_EQ(read_interface6_conf(name, nullptr), name ? c.of_eth0 : c.of_all) << c.text;
    }
  }
}

TEST(Interfaces, FailWithTheirSocketAndTheirIoctl) {
  unsigned long refused = SIOCGIFNETMASK;
  const test::ScriptedIoctl kernel([&](int, unsigned long request, void*) {
    return request == refused ? std::optional<int>(-1) : std::nullopt;
  });
  EXPECT_EQ(test::printed([] { state("lo"); }), "0 0 2000000 7f000001 ............49; ");
  refused = SIOCGIFCONF;
  EXPECT_EQ(read_interface_conf(nullptr, show), -1);
  EXPECT_EQ(test::printed([] {
              const test::NoDescriptors none;
              state("lo");
              printf("%d %d ", read_interface_conf("", show), read_interface6_conf("lo", dump));
              printf("%d %d", get_link_status("lo", 0), set_link_pwrdown("lo", 0, 1));
            }),
            "-1 -1 --------------0; -1 -1 -1 -1");
}

}  // namespace
