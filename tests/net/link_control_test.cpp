#include <gtest/gtest.h>
#include <linux/mii.h>
#include <linux/sockios.h>
#include <net/if.h>

#include <cerrno>

#include "support/scripted_ioctl.h"
#include "tavik.h"

namespace {

using std::string;

// The PHY with the number 3 on eth0: its registers, and every access that came through.
struct Phy {
  uint16_t registers[2];  // BMCR, BMSR
  int accesses;           // so many accesses work, all later ones fail
  bool stuck = false;     // a write is accepted and changes nothing
  string log = "";

  int access(unsigned long request, void* argument) {
    auto& mii = *reinterpret_cast<mii_ioctl_data*>(&static_cast<ifreq*>(argument)->ifr_ifru);
    const string name = static_cast<ifreq*>(argument)->ifr_name;
    const bool there = name == "eth0" && mii.phy_id == 3 && mii.reg_num < 2;
    errno = there ? EIO : EOPNOTSUPP;
    if (!there || accesses-- <= 0) return -1;
    char text[16];
    snprintf(text, sizeof text, "w%d=%04x ", mii.reg_num, mii.val_in);
    log += request == SIOCGMIIREG ? "r" + std::to_string(mii.reg_num) + " " : text;
    if (request == SIOCGMIIREG) mii.val_out = registers[mii.reg_num];
    if (request == SIOCSMIIREG && !stuck) registers[mii.reg_num] = mii.val_in;
    return 0;
  }
};

TEST(LinkControl, TellsTheLinkFromTheStatusRegister) {
  const struct {
    const char* name;
    uint32_t phy;
    uint16_t status;
    int32_t result;
  } cases[] = {{"eth0", 3, 0x002C, 1},       {"eth0", 3, 0x003C, 0}, {"eth0", 3, 0x0006, 0},
               {"eth0", 3, 0x7829, 0},       {"eth0", 3, 0xFFED, 1}, {"eth0", 3, 0x0000, 0},
               {"eth0", 0x10003, 0x0004, 1}, {"eth0", 0x103, 4, -1}, {"eth1", 3, 4, -1},
               {"eth0", UINT32_MAX, 4, -1},  {nullptr, 3, 4, -1}};
  for (const auto& c : cases) {
    Phy phy{{0xFFFF, c.status}, 1};
    const test::ScriptedIoctl device([&](int, auto... a) { return phy.access(a...); });
    EXPECT_EQ(get_link_status(c.name, c.phy), c.result) << std::hex << c.status;
  }
}

TEST(LinkControl, WritesOnlyWhatChangesAndReadsBack) {
  const struct {
    uint16_t control;
    int32_t down, accesses;
    bool stuck;
    int32_t result;
    string log;
  } cases[] = {
      {0x1000, 0, 9, false, 0, "r0 "},
      {0x1800, -1, 9, false, 1, "r0 "},
      {0x1000, 256, 9, false, 1, "r0 w0=1800 r0 "},
      {0xF8FF, 0, 9, false, 0, "r0 w0=f2ff r0 "},
      {0x1800, 0, 9, true, 1, "r0 w0=1200 r0 "},
      {0x1000, 1, 9, true, 0, "r0 w0=1800 r0 "},
      {0x1000, 1, 0, false, -1, ""},
      {0x1000, 1, 1, false, 0, "r0 "},
      {0x1800, 0, 1, false, 1, "r0 "},
      {0x1800, 0, 2, false, -1, "r0 w0=1200 "},
  };
  for (const auto& c : cases) {
    Phy phy{{c.control, 0}, c.accesses, c.stuck};
    const test::ScriptedIoctl device([&](int, auto... a) { return phy.access(a...); });
    EXPECT_EQ(set_link_pwrdown("eth0", 3, c.down), c.result);
    EXPECT_EQ(phy.log, c.log);
    EXPECT_EQ(set_link_pwrdown(nullptr, 3, c.down), -1);
  }
}

}  // namespace
