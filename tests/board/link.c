/*
 * Prints the state of a PHY's link, and powers it down or up first if so asked:
 * link INTERFACE PHY [down|up]. The registers are then read past the library.
 */
#include <tavik.h>

#include <linux/mii.h>
#include <linux/sockios.h>
#include <net/if.h>
#include <string.h>
#include <sys/ioctl.h>
#include <sys/socket.h>
#include <unistd.h>

static unsigned mii_register(const char* interface, uint32_t phy, uint16_t number) {
  struct ifreq request = {0};
  struct mii_ioctl_data* data = (struct mii_ioctl_data*)(void*)&request.ifr_data;
  int query = socket(AF_INET, SOCK_DGRAM, 0);
  strsncpy(request.ifr_name, sizeof request.ifr_name, interface);
  data->phy_id = (uint16_t)phy;
  data->reg_num = number;
  int result = ioctl(query, SIOCGMIIREG, &request);
  close(query);
  return result == 0 ? data->val_out : 0xFFFF;
}

int main(int argc, char** argv) {
  if (argc < 3) return 2;
  uint32_t phy = str_to_uint(argv[2]);
  if (argc > 3) printf("power %d ", (int)set_link_pwrdown(argv[1], phy, argv[3][0] == 'd'));
  printf("link %d control %04x\n", (int)get_link_status(argv[1], phy),
         mii_register(argv[1], phy, MII_BMCR));
  return 0;
}
