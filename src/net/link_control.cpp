#include <linux/mii.h>
#include <linux/sockios.h>
#include <string.h>

#include "net/interface_request.h"

static_assert(SIOCGMIIREG == 0x8948 && SIOCSMIIREG == 0x8949);
static_assert(MII_BMCR == 0 && BMCR_PDOWN == 0x0800 && BMCR_ANRESTART == 0x0200);
static_assert(MII_BMSR == 1 && BMSR_JCD == 2 && BMSR_LSTATUS == 4 && BMSR_RFAULT == 0x10);
static_assert(sizeof(mii_ioctl_data) == 8);

namespace {

// The registers of one PHY (IEEE 802.3, clause 22), which its interface's driver gives access to.
class Phy {
 public:
  Phy(const char* interface, uint32_t address)
      : query_(tavik::query_socket()),
        request_(tavik::interface_request(interface)),
        address_(static_cast<uint16_t>(address)) {}

  // A register's 16 bits; -1 on failure.
  [[nodiscard]] int32_t read(uint16_t number) const {
    mii_ioctl_data data = {address_, number, 0, 0};
    return transfer(SIOCGMIIREG, &data) ? data.val_out : -1;
  }

  [[nodiscard]] bool write(uint16_t number, int32_t value) const {
    mii_ioctl_data data = {address_, number, static_cast<uint16_t>(value), 0};
    return transfer(SIOCSMIIREG, &data);
  }

 private:
  bool transfer(unsigned long operation, mii_ioctl_data* data) const {
    if (!query_.is_open()) return false;
    struct ifreq request = request_;
    memcpy(&request.ifr_ifru, data, sizeof *data);
    if (ioctl(query_.get(), operation, &request) < 0) return false;
    memcpy(data, &request.ifr_ifru, sizeof *data);
    return true;
  }

  tavik::UniqueFd query_;
  struct ifreq request_;
  uint16_t address_;
};

int32_t is_down(int32_t control) {
  return (control & BMCR_PDOWN) != 0 ? 1 : 0;
}

}  // namespace

int32_t get_link_status(const char* interface, uint32_t phy) {
  if (interface == nullptr) return -1;
  const int32_t status = Phy(interface, phy).read(MII_BMSR);
  if (status < 0) return -1;
  return (status & (BMSR_LSTATUS | BMSR_JCD | BMSR_RFAULT)) == BMSR_LSTATUS ? 1 : 0;
}

int32_t set_link_pwrdown(const char* interface, uint32_t phy, int32_t down) {
  if (interface == nullptr) return -1;
  const Phy link(interface, phy);
  const int32_t before = link.read(MII_BMCR);
  if (before < 0) return -1;
  if (is_down(before) == (down != 0 ? 1 : 0)) return is_down(before);
  const int32_t wanted = down != 0 ? before | BMCR_PDOWN : (before & ~BMCR_PDOWN) | BMCR_ANRESTART;
  if (!link.write(MII_BMCR, wanted)) return is_down(before);
  const int32_t after = link.read(MII_BMCR);
  return after < 0 ? -1 : is_down(after);
}
