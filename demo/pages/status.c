/*
 * "Status": the device's clock, its interfaces with addresses and links, and the boot loader's
 * variables. ?format=json gives the interfaces alone; status.js keeps the page's table up to date
 * with it.
 */
#include "shared/interface_cells.h"
#include "shared/page.h"

static const struct {
  const char* key;
  const char* label;
} columns[CELL_COUNT] = {
    [CELL_NAME] = {"name", "Interface"}, [CELL_STATE] = {"state", "State"},
    [CELL_LINK] = {"link", "Link"},      [CELL_IPV4] = {"ipv4", "IPv4"},
    [CELL_IPV6] = {"ipv6", "IPv6"},
};

/* The kernel takes quotes and backslashes in a name, the JSON functions do not escape them. */
static void print_json_interface(char cells[CELL_COUNT][CELL_SIZE], int32_t more) {
  uint32_t flags = 0;
  str_replace_chr(cells[CELL_NAME], '"', '?');
  str_replace_chr(cells[CELL_NAME], '\\', '?');
  print_str(more ? ",\r\n{" : "{");
  for (int c = 0; c < CELL_COUNT; c++) flags = gen_json_text(cells[c], columns[c].key, flags);
  print_str("}");
}

static void print_json(void) {
  print_str("Content-Type: application/json\r\nCache-Control: no-store\r\n\r\n{\"interfaces\": [");
  interface_cells_each(print_json_interface);
  print_str("]}\r\n");
}

static void print_row(char cells[CELL_COUNT][CELL_SIZE], int32_t more) {
  (void)more;
  print_str("<tr>");
  for (int c = 0; c < CELL_COUNT; c++) {
    html_printf(1, "<td data-label=\"%s\">%s</td>", columns[c].label, cells[c]);
  }
  print_str("</tr>\r\n");
}

static void print_interfaces(void) {
  print_str("<h2>Interfaces</h2>\r\n<table id=\"interfaces\" class=\"stack\"><thead><tr>");
  for (int c = 0; c < CELL_COUNT; c++) printf("<th>%s</th>", columns[c].label);
  print_str("</tr></thead>\r\n<tbody>\r\n");
  interface_cells_each(print_row);
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
  read_item(state_folder(), "bootdevice", path, sizeof path - 1);
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
  getcgivars(NULL, NULL, page_read_query);
  if (page_asks_for("json")) {
    print_json();
  } else {
    print_page();
  }
  return 0;
}
