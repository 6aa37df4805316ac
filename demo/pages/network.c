/*
 * "Network": one control of every kind, each carried to an item and back. What a person types wrong
 * is corrected by the scan functions, and the page shows what was stored.
 */
#include "shared/address_controls.h"
#include "shared/check_group.h"
#include "shared/choice_controls.h"
#include "shared/first_values.h"
#include "shared/number_controls.h"
#include "shared/page.h"
#include "shared/request.h"
#include "shared/text_controls.h"
#include "shared/text_filters.h"

static const char* const modes[] = {"Fixed address", "From a DHCP server", "Off", NULL};
static const char* const name_servers[] = {"From the provider", "This device's own", NULL};

static int32_t zone_row(uint32_t index, uintptr_t arg, selectbox_text_option* out) {
  static const selectbox_text_option zones[] = {
      {"lan", "Local network"}, {"guest", "Guests"}, {"dmz", "Servers & cameras"}};
  (void)arg;
  if (index >= sizeof zones / sizeof *zones) return -1;
  *out = zones[index];
  return 1;
}

/* Settings with a field each, and behind them the check boxes. */
enum { FIELD_COUNT = 10, SETTING_COUNT = 13 };

static const setting settings[SETTING_COUNT] = {
    {"mode", "Address mode", .control = &number_select, .choices = modes},
    {"address", "Address", .control = &address_box},
    {"netmask", "Netmask", .control = &netmask_box},
    {"route", "Route", .control = &route_box},
    {"mac", "MAC address", .control = &mac_box},
    {"mtu", "MTU", .control = &number_box, .maximum = 4, .limits = {576, 9000, 1500}},
    {"pool", "DHCP range", .control = &range_box, .maximum = 9, .limits = {2, 254, 100}},
    {"zone", "Zone", .control = &text_select, .row = zone_row, .fallback = "lan"},
    {"dns", "Name servers", .control = &radio_buttons, .choices = name_servers},
    {"netnotes", "Notes", .control = &text_area, .maximum = 500, .filter = text_filter_lines},
    {.name = "ipv6", .label = "IPv6"},
    {.name = "multicast", .label = "Multicast"},
    {.name = "upnp", .label = "Port requests by UPnP"},
};

static void restore_first_values(outcome* result) {
  for (uint32_t s = 0; s < SETTING_COUNT; s++) {
    const char* name = settings[s].name;
    const char* value = first_value(name);
    if (value == NULL) continue;
    outcome_note(result, s,
                 s < FIELD_COUNT ? setting_store(&settings[s], value)
                                 : update_item(state_folder(), name, value, 1));
  }
}

static void save_features(outcome* result, const cgi_attr* attrs, int32_t count) {
  for (uint32_t s = FIELD_COUNT; s < SETTING_COUNT; s++) {
    const char* name = settings[s].name;
    uint32_t flags = checkbox_flags(request_value(attrs, count, name) != NULL, 0);
    outcome_note(result, s, wr_checkbox_item(state_folder(), name, flags));
  }
}

static int32_t save(void* context, cgi_attr* attrs, int32_t count, int32_t kind) {
  (void)kind;
  if (request_value(attrs, count, "restore") != NULL) {
    restore_first_values(context);
    return 0;
  }
  outcome_store_form(context, attrs, count, settings, FIELD_COUNT, setting_store);
  if (request_value(attrs, count, "features") != NULL) save_features(context, attrs, count);
  return 0;
}

static void print_page(const outcome* result) {
  page_begin("network", "Network");
  outcome_print(result, settings, SETTING_COUNT);
  print_str("<p>");
  gen_image("/", "ports.svg", "Ports: one uplink, four local", " width=\"320\" height=\"64\"");
  print_str("</p>\r\n");
  page_form("network");
  for (int s = 0; s < FIELD_COUNT; s++) setting_print(&settings[s]);
  page_legend("Features");
  check_group_begin("features");
  for (int s = FIELD_COUNT; s < SETTING_COUNT; s++) {
    uint32_t flags = rd_checkbox_item(state_folder(), settings[s].name, 0);
    check_group_box(settings[s].name, 1, settings[s].label, flags);
  }
  page_legend_end();
  print_str("<p class=\"actions\">");
  gen_xbutton("Save", NULL, PF_SUBMIT, NULL);
  gen_xbutton("Restore first values", NULL, PF_SUBMIT, " name=\"restore\" class=\"plain\"");
  print_str("</p>\r\n</form>\r\n");
  page_end();
}

int main(void) {
  return page_run("network", save, print_page);
}
