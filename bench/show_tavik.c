#include <stdlib.h>
#include <tavik.h>

#include "work.h"

int main(void) {
  const char* state = getenv(STATE_VARIABLE);
  getcgivars(NULL, NULL, NULL);
  print_str(HEADER);
  for (int i = 0; i < FIELD_COUNT; i++) {
    char name[16];
    snprintf(name, sizeof name, "field%d", i);
    gen_xtextbox_item(state, name, FIELD_CHARACTERS, 0, " name=\"%s\"", name);
    print_str("\r\n");
  }
  return 0;
}
