/*
 * "Status": the device's clock, its interfaces with addresses and links, and the boot loader's
 * variables. ?format=json gives the interfaces alone; status.js keeps the page's table up to date
 * with it.
 */
#include <arpa/inet.h>
#include <net/if.h>
#include <string.h>

#include "shared/page.h"

enum { NAME, STATE, LINK, IPV4, IPV6, COLUMN_COUNT };

static const struct {
  const char* key;
  const char* label;
} columns[COLUMN_COUNT] = {
    [NAME] = {"name", "Interface"}, [STATE] = {"state", "State"}, [LINK] = {"link", "Link"},
    [IPV4] = {"ipv4", "IPv4"},      [IPV6] = {"ipv6", "IPv6"},
};

/* The interface being printed: the callbacks have no argument that could carry it. */
static char cells[COLUMN_COUNT][512];

enum { NO_PREFIX = 129 };

static void add_address(int column, int family, const void* address, uint32_t prefix) {
  char* cell = cells[column];
  char text[INET6_ADDRSTRLEN];
  char behind[8] = "";
  size_t used = strlen(cell);
  inet_ntop(family, address, text, sizeof text);
  if (prefix < NO_PREFIX) snprintf(behind, sizeof behind, "/%u", (unsigned)prefix);
  snprintf(cell + used, sizeof cells[column] - used, "%s%s%s", used > 0 ? ", " : "", text, behind);
}

/*
 * An alias belongs to the interface ahead of its colon, "eth10" does not belong to "eth1". The
 * kernel tells the netmask of the first address under a name only.
 */
static int32_t add_ipv4(const struct ifreq* request, int32_t number) {
  const char* behind = request->ifr_name + strlen(cells[NAME]);
  struct sockaddr_in address;
  iface_info info;
  (void)number;
  if (*behind != '\0' && *behind != ':') return 0;
  memcpy(&address, &request->ifr_addr, sizeof address);
  if (cfg_interface(&info, get_interface(request->ifr_name, &info)) != 0) return 0;
  int32_t first = info.address.in.sin_addr.s_addr == address.sin_addr.s_addr;
  uint32_t mask = ntohl(info.netmask.in.sin_addr.s_addr);
  add_address(IPV4, AF_INET, &address.sin_addr, first ? gen_prefix(mask) : NO_PREFIX);
  return 0;
}

static int32_t add_ipv6(const iface_info* info) {
  add_address(IPV6, AF_INET6, &info->address.in6.sin6_addr, info->netmask.words[1]);
  return 0;
}

static void read_cells(const char* name) {
  static const char* const links[] = {"unknown", "down", "up"};
  iface_info info;
  uint32_t phy = 0;
  memset(cells, 0, sizeof cells);
  strsncpy(cells[NAME], sizeof cells[NAME], name);
  int32_t found = get_interface(name, &info) == 0;
  strsncpy(cells[STATE], sizeof cells[STATE], found && (info.flags & IFF_UP) != 0 ? "up" : "down");
  read_item_uint(page_state(), "phy", &phy);
  strsncpy(cells[LINK], sizeof cells[LINK], links[get_link_status(name, phy) + 1]);
  read_interface_conf(name, add_ipv4);
  read_interface6_conf(name, add_ipv6);
}

static void for_each_interface(void (*print)(int32_t more)) {
  struct if_nameindex* interfaces = if_nameindex();
  if (interfaces == NULL) return;
  for (int i = 0; interfaces[i].if_name != NULL; i++) {
    read_cells(interfaces[i].if_name);
    print(i > 0);
  }
  if_freenameindex(interfaces);
}

/* The kernel takes quotes and backslashes in a name, the JSON functions do not escape them. */
static void print_json_interface(int32_t more) {
  uint32_t flags = 0;
  str_replace_chr(cells[NAME], '"', '?');
  str_replace_chr(cells[NAME], '\\', '?');
  print_str(more ? ",\r\n{" : "{");
  for (int c = 0; c < COLUMN_COUNT; c++) flags = gen_json_text(cells[c], columns[c].key, flags);
  print_str("}");
}

static void print_json(void) {
  print_str("Content-Type: application/json\r\nCache-Control: no-store\r\n\r\n{\"interfaces\": [");
  for_each_interface(print_json_interface);
  print_str("]}\r\n");
}

static void print_row(int32_t more) {
  (void)more;
  print_str("<tr>");
  for (int c = 0; c < COLUMN_COUNT; c++) {
    html_printf(1, "<td data-label=\"%s\">%s</td>", columns[c].label, cells[c]);
  }
  print_str("</tr>\r\n");
}

static void print_interfaces(void) {
  print_str("<h2>Interfaces</h2>\r\n<table id=\"interfaces\" class=\"stack\"><thead><tr>");
  for (int c = 0; c < COLUMN_COUNT; c++) printf("<th>%s</th>", columns[c].label);
  print_str("</tr></thead>\r\n<tbody>\r\n");
  for_each_interface(print_row);
  print_str("</tbody></table>\r\n<p class=\"quiet\" id=\"age\">Reload the page to update.</p>\r\n");
}

static const char* boot_fault(int32_t result) {
  static const char* const faults[] = {
      "is neither NOR flash nor data flash", "has a size that no environment has",
      "cannot be read to its end", "is too large for the memory that is left",
      "has a wrong checksum"};
  return result < 0 ? "is no flash partition of this device" : faults[result - 1];
}

static void print_boot_environment(void) {
  static const char* const names[] = {"ver", "serial#", "ethaddr", "bootdelay", "bootcmd"};
  char path[64];
  read_item(page_state(), "bootdevice", path, sizeof path - 1);
  int32_t result = read_uboot_env(path);
  print_str("<h2>Boot loader</h2>\r\n");
  if (result != 0) {
    html_printf(1, "<p>Its variables cannot be shown: %s %s.</p>\r\n", path, boot_fault(result));
    return;
  }
  print_str("<table>\r\n");
  for (size_t i = 0; i < sizeof names / sizeof *names; i++) {
    const char* value = uboot_getenv(names[i]);
    html_printf(1, "<tr><th>%s</th><td>%s</td></tr>\r\n", names[i],
                value != NULL ? value : "not set");
  }
  print_str("</table>\r\n");
  free_uboot_env();
}

static void print_page(void) {
  page_begin_scripted("status", "Status", PAGE_ASSETS "/status.js");
  print_interfaces();
  print_boot_environment();
  page_end();
}

int main(void) {
  outcome ignored = {0, 0, 0};
  getcgivars(&ignored, NULL, page_read_outcome);
  if (page_asks_for("json")) {
    print_json();
  } else {
    print_page();
  }
  return 0;
}
