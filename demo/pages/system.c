/*
 * "System": the device's name and whereabouts, its time server, and a passphrase that is shown as
 * bullets. ?format=json gives the settings that other programs ask for.
 */
#include "shared/page.h"
#include "shared/text_filters.h"

enum { HOST_NAME, LOCATION, CONTACT, TIME_SERVER, PASSPHRASE, SETTING_COUNT };

static const setting settings[SETTING_COUNT] = {
    [HOST_NAME] = {"hostname", "Host name", .maximum = 63, .filter = textbox_filter_dns},
    [LOCATION] = {"location", "Location", .maximum = 80, .filter = text_filter_line},
    [CONTACT] = {"contact", "Contact", .maximum = 80, .filter = text_filter_line},
    [TIME_SERVER] = {"timeserver", "Time server", .maximum = 63, .filter = textbox_filter_dns6},
    [PASSPHRASE] = {"passphrase", "Passphrase", .maximum = 32,
                    .filter = textbox_filter_ascii_printable,
                    .flags = PF_PASSWORD | PF_AUTOCOMPLETE_OFF},
};

static int32_t store(const setting* field, const char* text) {
  uint32_t maximum = (uint32_t)field->maximum;
  if ((field->flags & PF_PASSWORD) == 0) {
    return update_textbox_item(state_folder(), field->name, text, maximum, field->filter);
  }
  uint32_t rejected = 0;
  int32_t stored =
      update_password_item(state_folder(), field->name, text, maximum, field->filter, &rejected);
  return stored == 0 && rejected > 0 ? -1 : stored;
}

static int32_t save(void* context, cgi_attr* attrs, int32_t count, int32_t kind) {
  (void)kind;
  outcome_store_form(context, attrs, count, settings, SETTING_COUNT, store);
  return 0;
}

static void print_json(void) {
  uint32_t flags = 0;
  print_str("Content-Type: application/json\r\nCache-Control: no-store\r\n\r\n{");
  const int shown[] = {HOST_NAME, TIME_SERVER};
  for (size_t i = 0; i < sizeof shown / sizeof *shown; i++) {
    const setting* field = &settings[shown[i]];
    flags = gen_json_text_item(state_folder(), field->name, field->maximum, field->name, flags);
  }
  print_str("}\r\n");
}

static void print_page(const outcome* result) {
  page_begin("system", "System");
  outcome_print(result, settings, SETTING_COUNT);
  page_form("system");
  for (int s = 0; s < SETTING_COUNT; s++) setting_print(&settings[s]);
  page_form_end("Save");
  page_end();
}

int main(void) {
  outcome result = {0, 0, 0};
  origin_guard();
  getcgivars(&result, save, request_is_post() ? NULL : page_read_query);
  if (request_is_post()) {
    outcome_redirect(&result, "system");
  } else if (page_asks_for("json")) {
    print_json();
  } else {
    print_page(&result);
  }
  return 0;
}
