#include "plain.h"

static void ipv4(const char* directory) {
  uint32_t ip = 0;
  ipv4_cidr net = {0, 0};
  CHECK(create_item(directory, "ip", "", 0) == 1);
  CHECK(scan_ipv4("10.0.0.1", &ip, 0) == 1);
  CHECK(update_ipv4box_item(directory, "ip", &ip) == 9);
  gen_ipv4box("ip", 0, &ip, 0);
  CHECK(
      printed("<input type=\"text\" name=\"ip\" size=\"15\" maxlength=\"15\" value=\"10.0.0.1\">"));
  gen_xipv4box(-1, &ip, 0, NULL);
  CHECK(printed("<input type=\"text\" maxlength=\"15\" value=\"10.0.0.1\">"));
  CHECK(valid_ipv4_addr(&ip, ip, ip) == 1);
  CHECK(scan_ipv4_netmask("255.0.0.0", &ip, 9, 32) == 1);
  CHECK(gen_prefix(gen_netmask(9)) == 9);
  CHECK(rd_ipv4box_item(directory, "ip", &ip, 0) == 0 && ip != 0);
  CHECK(scan_ipv4cidr("10.0.0.1/8", &net, 0, 1) == 1);
  CHECK(update_ipv4cidr_item(directory, "ip", &net) == 11);
  CHECK(rd_ipv4cidr_item(directory, "ip", &net, 0) == 0 && net.prefix == 8);
  gen_ipv4cidr("net", 0, &net, 0);
  CHECK(printed(
      "<input type=\"text\" name=\"net\" size=\"18\" maxlength=\"18\" value=\"10.0.0.0/8\">"));
  gen_xipv4cidr(-1, &net, 0, " name=\"%s\"", "net");
  CHECK(printed("<input type=\"text\" maxlength=\"18\" value=\"10.0.0.0/8\" name=\"net\">"));
  CHECK(remove_item(directory, "ip") == 0);
}

void addresses(const char* directory) {
  struct sockaddr mac = {0};
  char text[18];
  ipv4(directory);
  CHECK(scan_macaddr(&mac, "0:1:2") == 1 && mac_isvalid(&mac) == 1);
  CHECK(strcmp(mac_ntop(&mac, ':', text, sizeof text), "00:01:02:00:00:00") == 0);
  CHECK(*if_hwaddr_ntop("", ':', text, sizeof text) == '\0');
  gen_xmacbox(0, &mac, PF_DISABLED, NULL);
  CHECK(printed(
      "<input type=\"text\" maxlength=\"18\" size=\"18\" value=\"00-01-02-00-00-00\" disabled>"));
}
