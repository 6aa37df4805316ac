/*
 * "Notes on this device": shows a few items and takes new values for them, by GET and by POST. It
 * writes its controls by hand, to show what the field functions do for the other pages.
 */
#include <string.h>

#include "shared/origin.h"
#include "shared/page.h"

enum { NOTE_COUNT = 3, NOTE_CHARACTERS = 100, NOTE_SIZE = 3 * NOTE_CHARACTERS };

static const setting notes[NOTE_COUNT] = {
    {.name = "owner", .label = "Owner"},
    {.name = "place", .label = "Place"},
    {.name = "remark", .label = "Remark"},
};

/* An item holds one line: the value ends at its first control character, or where it is full. */
static int32_t store(const char* name, char* value) {
  uint32_t bytes = 0;
  utf8_length(value, NOTE_CHARACTERS, &bytes);
  value[bytes] = '\0';
  value[strcspn(value, "\r\n\t")] = '\0';
  return update_item(state_folder(), name, value, NOTE_SIZE);
}

static int32_t save(void* context, cgi_attr* attrs, int32_t count, int32_t kind) {
  outcome* result = context;
  (void)kind;
  for (int32_t i = 0; i < count; i++) {
    for (uint32_t n = 0; n < NOTE_COUNT; n++) {
      if (strcmp(attrs[i].name, notes[n].name) != 0) continue;
      outcome_note(result, n, store(notes[n].name, attrs[i].value));
      result->told = 1;
    }
  }
  return 0;
}

static int32_t read_query(void* context, cgi_attr* attrs, int32_t count, int32_t kind) {
  page_read_query(context, attrs, count, kind);
  return origin_allows_query() ? save(context, attrs, count, kind) : 0;
}

static void print_form(const char* method) {
  printf("<form method=\"%s\" action=\"notes\">\r\n", method);
  for (int n = 0; n < NOTE_COUNT; n++) {
    char value[NOTE_SIZE + 1];
    read_item(state_folder(), notes[n].name, value, NOTE_SIZE);
    printf("<p class=\"field\"><label for=\"%s-%s\">%s</label>\r\n", method, notes[n].name,
           notes[n].label);
    printf("<input type=\"text\" id=\"%s-%s\" name=\"%s\" value=\"", method, notes[n].name,
           notes[n].name);
    html_print_text(value);
    print_str("\"></p>\r\n");
  }
  printf("<p class=\"actions\"><button>Save by %s</button></p>\r\n</form>\r\n", method);
}

int main(void) {
  outcome result = {0, 0, 0};
  origin_guard();
  getcgivars(&result, save, request_is_post() ? NULL : read_query);
  if (request_is_post()) {
    outcome_redirect(&result, "notes");
    return 0;
  }
  page_begin("notes", "Notes on this device");
  outcome_print(&result, notes, NOTE_COUNT);
  print_form("post");
  print_form("get");
  page_end();
  return 0;
}
