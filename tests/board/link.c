/*
 * Powers a PHY down or up, and then reads its control register past the library:
 * link INTERFACE PHY down|up
 */
#include <tavik.h>

#include <linux/mii.h>
#include <linux/sockios.h>
#include <net/if.h>
#include <sys/ioctl.h>
#include <sys/socket.h>

int main(int argc, char** argv) {
  if (argc != 4) return 2;
  struct ifreq request = {0};
  struct mii_ioctl_data* data = (struct mii_ioctl_data*)(void*)&request.ifr_data;
  uint32_t phy = str_to_uint(argv[2]);
  printf("power %d", (int)set_link_pwrdown(argv[1], phy, argv[3][0] == 'd'));
  strsncpy(request.ifr_name, sizeof request.ifr_name, argv[1]);
  data->phy_id = (uint16_t)phy;
  data->reg_num = MII_BMCR;
  int result = ioctl(socket(AF_INET, SOCK_DGRAM, 0), SIOCGMIIREG, &request);
  printf(" control %04x\n", result == 0 ? data->val_out : 0xFFFFU);
  return 0;
}
