/* Prints what the library tells of an interface: interfaces NAME */
#include <tavik.h>

#include <arpa/inet.h>
#include <net/if.h>

static int32_t print_ipv4(const struct ifreq* request, int32_t number) {
  struct sockaddr_in address = *(const struct sockaddr_in*)(const void*)&request->ifr_addr;
  printf("%d %s %s\n", (int)number, request->ifr_name, inet_ntoa(address.sin_addr));
  return 0;
}

static int32_t print_ipv6(const iface_info* info) {
  char text[INET6_ADDRSTRLEN];
  inet_ntop(AF_INET6, &info->address.in6.sin6_addr, text, sizeof text);
  printf("%s/%u\n", text, (unsigned)info->netmask.words[1]);
  return 0;
}

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  iface_info info = {0};
  int32_t status = get_interface(argv[1], &info);
  printf("%d %s", (int)cfg_interface(&info, status), info.flags & IFF_UP ? "up" : "down");
  printf(" %s", inet_ntoa(info.address.in.sin_addr));
  printf(" %s\n", inet_ntoa(info.netmask.in.sin_addr));
  read_interface_conf(argv[1], print_ipv4);
  printf("%d\n", (int)read_interface6_conf(argv[1], print_ipv6));
  return 0;
}
