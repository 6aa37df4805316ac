#include "shared/outcome.h"

#include <string.h>

#include "shared/device_log.h"
#include "shared/request.h"

void outcome_note(outcome* result, uint32_t index, int32_t stored) {
  if (stored > 0) result->changed |= 1U << index;
  if (stored < 0) result->failed |= 1U << index;
}

void outcome_store_form(outcome* result, const cgi_attr* attrs, int32_t count,
                        const setting* settings, uint32_t setting_count,
                        int32_t (*store)(const setting* about, const char* text)) {
  for (int32_t i = 0; i < count; i++) {
    for (uint32_t s = 0; s < setting_count; s++) {
      if (strcmp(attrs[i].name, settings[s].name) != 0) continue;
      outcome_note(result, s, store(&settings[s], attrs[i].value));
    }
  }
}

void outcome_redirect(const outcome* result, const char* page) {
  if (result->changed != 0) device_log("%s: settings stored", page);
  if (result->failed != 0) device_log("%s: settings that could not be stored", page);
  printf("Status: 303 See Other\r\nLocation: %s?changed=%u&failed=%u\r\n\r\n", page,
         (unsigned)result->changed, (unsigned)result->failed);
}

void outcome_read(outcome* result, const cgi_attr* attrs, int32_t count) {
  const char* changed = request_value(attrs, count, "changed");
  const char* failed = request_value(attrs, count, "failed");
  result->changed = str_to_uint(changed);
  result->failed = str_to_uint(failed);
  result->told = changed != NULL || failed != NULL;
}

static void print_labels(const char* lead, uint32_t bits, const setting* settings, uint32_t count) {
  const char* separator = lead;
  for (uint32_t i = 0; i < count; i++) {
    if ((bits >> i & 1) == 0) continue;
    print_str(separator);
    html_print_text(settings[i].label);
    separator = ", ";
  }
  if (separator != lead) print_str(". ");
}

void outcome_print(const outcome* result, const setting* settings, uint32_t count) {
  if (!result->told) return;
  printf("<p class=\"%s\" role=\"status\">", result->failed != 0 ? "note failed" : "note");
  print_labels("Saved: ", result->changed, settings, count);
  print_labels("Could not be saved: ", result->failed, settings, count);
  if (result->changed == 0 && result->failed == 0) {
    print_str("Nothing has changed: all settings are as they were.");
  }
  print_str("</p>\r\n");
}
