#include <stdlib.h>
#include <string.h>
#include <tavik.h>

#include "work.h"

static int32_t save(void* context, cgi_attr* attrs, int32_t count, int32_t kind) {
  (void)kind;
  for (int32_t i = 0; i < count; i++) {
    if (strncmp(attrs[i].name, "field", 5) != 0) continue;
    update_textbox_item(context, attrs[i].name, attrs[i].value, FIELD_CHARACTERS, NULL);
  }
  return 0;
}

int main(void) {
  getcgivars(getenv(STATE_VARIABLE), save, NULL);
  print_str(HEADER "saved\r\n");
  return 0;
}
