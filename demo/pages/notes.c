/*
 * "Notes on this device": shows a few items and takes new values for them, by GET and by POST.
 */
#include <stdlib.h>
#include <string.h>

#include "tavik.h"

enum { NOTE_COUNT = 3, NOTE_CHARACTERS = 100, NOTE_SIZE = 3 * NOTE_CHARACTERS };

static const struct {
  const char* name;
  const char* label;
} notes[NOTE_COUNT] = {{"owner", "Owner"}, {"place", "Place"}, {"remark", "Remark"}};

/* What became of each note; empty for one that was not submitted. */
struct outcome {
  const char* directory;
  const char* words[NOTE_COUNT];
};

static const char* store(const char* directory, const char* name, char* value) {
  uint32_t bytes = 0;
  utf8_length(value, NOTE_CHARACTERS, &bytes);
  value[bytes] = '\0';
  value[strcspn(value, "\r\n\t")] = '\0';
  int32_t result = update_item(directory, name, value, NOTE_SIZE);
  if (result < 0) return "could not be stored";
  return result > 0 ? "changed" : "unchanged";
}

static int32_t take_values(void* context, cgi_attr* attrs, int32_t count, int32_t kind) {
  struct outcome* outcome = context;
  (void)kind;
  for (int32_t i = 0; i < count; i++) {
    for (int n = 0; n < NOTE_COUNT; n++) {
      if (strcmp(attrs[i].name, notes[n].name) != 0) continue;
      outcome->words[n] = store(outcome->directory, notes[n].name, attrs[i].value);
    }
  }
  return 0;
}

static void print_note(const struct outcome* outcome, int n) {
  char value[NOTE_SIZE + 1];
  read_item(outcome->directory, notes[n].name, value, NOTE_SIZE);
  printf("<p><label>%s <input name=\"%s\" value=\"", notes[n].label, notes[n].name);
  html_print_text(value);
  print_str("\"></label>");
  if (outcome->words[n] != NULL) printf(" <em>%s</em>", outcome->words[n]);
  print_str("</p>\r\n");
}

static void print_form(const struct outcome* outcome, const char* method) {
  printf("<form method=\"%s\">\r\n", method);
  for (int n = 0; n < NOTE_COUNT; n++) print_note(outcome, n);
  printf("<p><button>Save by %s</button></p>\r\n</form>\r\n", method);
}

int main(void) {
  struct outcome outcome = {getenv("TAVIK_DEMO_STATE"), {NULL}};
  getcgivars(&outcome, take_values, NULL);
  print_str(
      "Content-Type: text/html; charset=utf-8\r\n\r\n<!DOCTYPE html>\r\n"
      "<html lang=\"en\">\r\n<head>\r\n<title>Notes on this device</title>\r\n</head>\r\n<body>\r\n"
      "<h1>Notes on this device</h1>\r\n");
  print_form(&outcome, "post");
  print_form(&outcome, "get");
  print_str("</body>\r\n</html>\r\n");
  return 0;
}
