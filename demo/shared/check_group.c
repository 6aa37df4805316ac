#include "shared/check_group.h"

#include <string.h>

void check_group_begin(const char* name) {
  printf("<input type=\"hidden\" name=\"%s\" value=\"\">\r\n", name);
}

void check_group_box(const char* name, uint32_t value, const char* label, uint32_t flags) {
  print_str("<label>");
  gen_xcheckbox(flags, " name=\"%s\" value=\"%u\"", name, (unsigned)value);
  printf(" %s</label>\r\n", label);
}

static uint32_t bit_of(const char* text, uint32_t limit) {
  uint32_t value = str_to_uint(text);
  size_t digits = strspn(text, "0123456789");
  return digits > 0 && digits < 3 && text[digits] == '\0' && value < limit ? 1U << value : 0;
}

int32_t check_group_read(const cgi_attr* attrs, int32_t count, const char* name, uint32_t limit,
                         uint32_t* mask) {
  int32_t found = 0;
  *mask = 0;
  for (int32_t i = 0; i < count; i++) {
    if (strcmp(attrs[i].name, name) != 0) continue;
    found = 1;
    *mask |= bit_of(attrs[i].value, limit);
  }
  return found;
}
