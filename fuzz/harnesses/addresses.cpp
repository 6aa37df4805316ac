// MAC, IPv4 and CIDR texts, beside inet_pton() and sscanf() for texts that are regular; every value
// that was taken comes back when it is printed and submitted again.
#include <arpa/inet.h>
#include <sys/socket.h>

#include "harness.h"

namespace {

void mac(const char* text) {
  sockaddr address = {};
  scan_macaddr(&address, text);
  char shown[18];
  mac_ntop(&address, ':', shown, sizeof shown);
  EXPECT(strlen(shown) == 17 && scan_macaddr(&address, shown) == 0);
  unsigned char bytes[6];
  int end = 0;
  sscanf(text, "%2hhx:%2hhx:%2hhx:%2hhx:%2hhx:%2hhx%n", &bytes[0], &bytes[1], &bytes[2], &bytes[3],
         &bytes[4], &bytes[5], &end);
  if (end == 17 && strspn(text, "0123456789abcdefABCDEF:") >= 17) {
    EXPECT(memcmp(bytes, address.sa_data, 6) == 0);
  }
}

void ipv4(const char* text, uint32_t fallback) {
  uint32_t held = ~fallback;
  const int32_t changed = scan_ipv4(text, &held, fallback);
  EXPECT((changed != 0) == (held != ~fallback));
  in_addr known = {};
  if (inet_pton(AF_INET, text, &known) == 1) {
    EXPECT(held == (known.s_addr == INADDR_NONE ? fallback : known.s_addr));
  }
  const in_addr value = {held};
  char shown[INET_ADDRSTRLEN];
  EXPECT(scan_ipv4(inet_ntop(AF_INET, &value, shown, sizeof shown), &held, fallback) == 0 ||
         held == fallback);
  uint32_t host = 0;
  if (valid_ipv4_addr(&host, held, htonl(gen_netmask(fallback % 33))) != 0) {
    EXPECT(((host ^ held) & htonl(gen_netmask(fallback % 33))) == 0);
  }
}

void netmask(const char* text, uint32_t a, uint32_t b) {
  uint32_t mask = 0;
  EXPECT(scan_ipv4_netmask(text, &mask, std::min(a, b), std::max(a, b)) == 1);
  const uint32_t prefix = gen_prefix(ntohl(mask));
  EXPECT(std::min(a, b) <= prefix && prefix <= std::max(a, b));
  EXPECT(gen_netmask(prefix) == ntohl(mask));
}

void cidr(const char* text, uint32_t fallback, bool is_masked) {
  ipv4_cidr held = {1, 99};
  EXPECT(scan_ipv4cidr(text, &held, fallback, is_masked) == 1 && held.prefix <= 32);
  if (is_masked) EXPECT((held.address & ~htonl(gen_netmask(held.prefix))) == 0);
  // An address that only the mask made 0 keeps its prefix.
  if (held.address == 0) return;
  char shown[32];
  const in_addr value = {held.address};
  inet_ntop(AF_INET, &value, shown, sizeof shown);
  snprintf(shown + strlen(shown), 4, "/%u", held.prefix);
  EXPECT(scan_ipv4cidr(shown, &held, held.address, is_masked) == 0);
}

}  // namespace

int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  fuzz::Input input(data, size);
  const uint32_t fallback = input.word();
  const uint8_t bounds = input.byte();
  const fuzz::Exact text(input.text());
  mac(text.get());
  ipv4(text.get(), fallback);
  netmask(text.get(), bounds % 33, bounds / 8);
  cidr(text.get(), fallback, (bounds & 1) != 0);
  return 0;
}
