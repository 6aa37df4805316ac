/*
 * "Network": one control of every kind, each carried to an item and back. What a person types wrong
 * is corrected by the scan functions, and the page shows what was stored.
 */
#include <stdlib.h>
#include <string.h>

#include "shared/address_controls.h"
#include "shared/first_values.h"
#include "shared/page.h"
#include "shared/text_select.h"

enum { MTU_LEAST = 576, MTU_MOST = 9000, MTU_USUAL = 1500, NOTE_CHARACTERS = 500 };

/* Address mode: a numeric select. */

static const char* const modes[] = {"Fixed address", "From a DHCP server", "Off"};
enum { MODE_COUNT = sizeof modes / sizeof *modes };

static int32_t mode_option(uint32_t operation, uint32_t index, uintptr_t arg) {
  (void)arg;
  if (index >= MODE_COUNT) return -1;
  if (operation == SELECT_OP_LABEL) html_print_text(modes[index]);
  return 1;
}

static void print_mode(const char* name) {
  select_state state = {0, {0}};
  state.flags = rd_numberbox_item(page_state(), name, &state.value.index, 0);
  gen_xselectbox_num(&state, mode_option, 0, " id=\"%s\" name=\"%s\"", name, name);
}

static int32_t store_mode(const char* name, const char* text) {
  uint32_t mode = 0;
  rd_numberbox_item(page_state(), name, &mode, 0);
  scan_select_num(text, &mode, MODE_COUNT, 0);
  return update_item_uint(page_state(), name, mode);
}

/* Numbers: the MTU, and the range of host numbers that the DHCP server gives out. */

static void print_mtu(const char* name) {
  uint32_t mtu = MTU_USUAL;
  uint32_t flags = rd_numberbox_item(page_state(), name, &mtu, MTU_USUAL);
  gen_xnumberbox(4, mtu, flags, " id=\"%s\" name=\"%s\" inputmode=\"numeric\"", name, name);
}

static int32_t store_mtu(const char* name, const char* text) {
  uint32_t mtu = MTU_USUAL;
  rd_numberbox_item(page_state(), name, &mtu, MTU_USUAL);
  scan_number(text, &mtu, MTU_LEAST, MTU_MOST, MTU_USUAL);
  return wr_numberbox_item(page_state(), name, mtu);
}

enum { HOST_LEAST = 2, HOST_MOST = 254, HOST_USUAL = 100, RANGE_SIZE = 9 };

static uint32_t read_range(const char* name, uint32_t* first, uint32_t* last) {
  char text[RANGE_SIZE + 1];
  uint32_t flags = read_item(page_state(), name, text, RANGE_SIZE) < 0 ? PF_DISABLED : 0;
  *first = *last = HOST_USUAL;
  scan_range(text, first, last, HOST_LEAST, HOST_MOST, HOST_USUAL);
  return flags;
}

static void print_range(const char* name) {
  uint32_t first = 0;
  uint32_t last = 0;
  uint32_t flags = read_range(name, &first, &last);
  gen_xrangebox(RANGE_SIZE, &first, &last, NULL, flags, " id=\"%s\" name=\"%s\"", name, name);
}

static int32_t store_range(const char* name, const char* text) {
  char clean[32];
  uint32_t first = 0;
  uint32_t last = 0;
  read_range(name, &first, &last);
  scan_range(text, &first, &last, HOST_LEAST, HOST_MOST, HOST_USUAL);
  snprintf(clean, sizeof clean, "%u-%u", (unsigned)first, (unsigned)last);
  return update_item(page_state(), name, clean, RANGE_SIZE);
}

/* Zone: a text select. */

static int32_t zone_row(uint32_t index, uintptr_t arg, selectbox_text_option* out) {
  static const selectbox_text_option zones[] = {
      {"lan", "Local network"}, {"guest", "Guests"}, {"dmz", "Servers & cameras"}};
  (void)arg;
  if (index >= sizeof zones / sizeof *zones) return -1;
  *out = zones[index];
  return 1;
}

static void print_zone(const char* name) {
  text_select_print(name, zone_row, 0, "lan");
}

static int32_t store_zone(const char* name, const char* text) {
  return text_select_store(name, text, zone_row, 0, "lan");
}

/* Name servers: radio buttons. */

static const char* const dns_choices[] = {"From the provider", "This device's own"};
enum { DNS_COUNT = sizeof dns_choices / sizeof *dns_choices };

static void print_dns(const char* name) {
  uint32_t current = 0;
  uint32_t flags = rd_numberbox_item(page_state(), name, &current, 0);
  for (uint32_t i = 0; i < DNS_COUNT; i++) {
    print_str("<label>");
    gen_radio(name, i, current, NULL, flags);
    printf(" %s</label>\r\n", dns_choices[i]);
  }
}

static int32_t store_dns(const char* name, const char* text) {
  uint32_t choice = 0;
  rd_numberbox_item(page_state(), name, &choice, 0);
  scan_select_num(text, &choice, DNS_COUNT, choice);
  return update_item_uint(page_state(), name, choice);
}

/* Notes: a text area with a whole file. */

static void print_notes(const char* name) {
  char* text = NULL;
  uint32_t flags =
      get_textarea_file(&text, page_state(), name, NOTE_CHARACTERS) > 0 ? 0 : PF_DISABLED;
  gen_textarea(text, flags, " id=\"%s\" name=\"%s\" rows=\"4\" maxlength=\"%d\"", name, name,
               NOTE_CHARACTERS);
  free(text);
}

static int32_t store_notes(const char* name, const char* text) {
  char* unix_text = malloc(strlen(text) + 1);
  if (unix_text == NULL) return -1;
  textarea_to_unix(unix_text, text);
  int32_t stored = update_textarea_file(page_state(), name, unix_text, NOTE_CHARACTERS);
  free(unix_text);
  return stored;
}

/* The form: the settings with a control of their own, then the check boxes. */

enum { CONTROL_COUNT = 10, FEATURE_COUNT = 3, SETTING_COUNT = CONTROL_COUNT + FEATURE_COUNT };

static const setting settings[SETTING_COUNT] = {
    {.name = "mode", .label = "Address mode"},
    {.name = "address", .label = "Address"},
    {.name = "netmask", .label = "Netmask"},
    {.name = "route", .label = "Route"},
    {.name = "mac", .label = "MAC address"},
    {.name = "mtu", .label = "MTU"},
    {.name = "pool", .label = "DHCP range"},
    {.name = "zone", .label = "Zone"},
    {.name = "dns", .label = "Name servers"},
    {.name = "netnotes", .label = "Notes"},
    {.name = "ipv6", .label = "IPv6"},
    {.name = "multicast", .label = "Multicast"},
    {.name = "upnp", .label = "Port requests by UPnP"},
};

static const struct {
  void (*print)(const char* name);
  int32_t (*store)(const char* name, const char* text);
} controls[CONTROL_COUNT] = {
    {print_mode, store_mode},   {print_address, store_address}, {print_address, store_netmask},
    {print_route, store_route}, {print_mac, store_mac},         {print_mtu, store_mtu},
    {print_range, store_range}, {print_zone, store_zone},       {print_dns, store_dns},
    {print_notes, store_notes},
};

static int32_t store(uint32_t index, const char* text) {
  return controls[index].store(settings[index].name, text);
}

static void restore_first_values(outcome* result) {
  for (uint32_t s = 0; s < SETTING_COUNT; s++) {
    const char* value = first_value(settings[s].name);
    if (value == NULL) continue;
    page_note(result, s,
              s < CONTROL_COUNT ? store(s, value)
                                : update_item(page_state(), settings[s].name, value, 1));
  }
}

/* A box that is off sends nothing, so a hidden field tells that the boxes were in the form. */
static void save_features(outcome* result, uint32_t checked) {
  for (uint32_t f = 0; f < FEATURE_COUNT; f++) {
    uint32_t s = CONTROL_COUNT + f;
    uint32_t flags = (checked >> s & 1) != 0 ? PF_CHECKED : 0;
    page_note(result, s, wr_checkbox_item(page_state(), settings[s].name, flags));
  }
}

static int32_t save(void* context, cgi_attr* attrs, int32_t count, int32_t kind) {
  uint32_t submitted = 0;
  (void)kind;
  for (int32_t i = 0; i < count; i++) {
    if (strcmp(attrs[i].name, "restore") == 0) {
      restore_first_values(context);
      return 0;
    }
  }
  for (int32_t i = 0; i < count; i++) {
    for (uint32_t s = 0; s < SETTING_COUNT; s++) {
      if (strcmp(attrs[i].name, settings[s].name) != 0) continue;
      submitted |= 1U << s;
      if (s < CONTROL_COUNT) page_note(context, s, store(s, attrs[i].value));
    }
    if (strcmp(attrs[i].name, "features") == 0) submitted |= 1U << SETTING_COUNT;
  }
  if ((submitted >> SETTING_COUNT & 1) != 0) save_features(context, submitted);
  return 0;
}

static void print_features(void) {
  print_str(
      "<fieldset class=\"field\"><legend>Features</legend>\r\n<div class=\"choices\">"
      "<input type=\"hidden\" name=\"features\" value=\"\">\r\n");
  for (uint32_t s = CONTROL_COUNT; s < SETTING_COUNT; s++) {
    print_str("<label>");
    gen_xcheckbox(rd_checkbox_item(page_state(), settings[s].name, 0), " name=\"%s\" value=\"1\"",
                  settings[s].name);
    printf(" %s</label>\r\n", settings[s].label);
  }
  print_str("</div></fieldset>\r\n");
}

static void print_controls(void) {
  for (uint32_t c = 0; c < CONTROL_COUNT; c++) {
    const setting* about = &settings[c];
    if (controls[c].print == print_dns) {
      printf("<fieldset class=\"field\"><legend>%s</legend>\r\n<div class=\"choices\">",
             about->label);
      controls[c].print(about->name);
      print_str("</div></fieldset>\r\n");
    } else {
      page_label(about->name, about->label);
      controls[c].print(about->name);
      page_field_end();
    }
  }
}

static void print_page(const outcome* result) {
  page_begin("network", "Network");
  page_print_outcome(result, settings, SETTING_COUNT);
  print_str("<p>");
  gen_image("/", "ports.svg", "Ports: one uplink, four local", " width=\"320\" height=\"64\"");
  print_str("</p>\r\n");
  page_form("network");
  print_controls();
  print_features();
  print_str("<p class=\"actions\">");
  gen_xbutton("Save", NULL, PF_SUBMIT, NULL);
  gen_xbutton("Restore first values", NULL, PF_SUBMIT, " name=\"restore\" class=\"plain\"");
  print_str("</p>\r\n</form>\r\n");
  page_end();
}

int main(void) {
  return page_run("network", save, print_page);
}
