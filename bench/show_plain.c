#ifdef BENCH_FCGI
#include <fcgi_stdio.h>
#else
#include <stdio.h>
#endif
#include <stdlib.h>

#include "plain.h"
#include "work.h"

static void show(void) {
  const char* state = getenv(STATE_VARIABLE);
  fputs(HEADER, stdout);
  for (int i = 0; i < FIELD_COUNT; i++) {
    char name[16];
    char value[FIELD_SIZE + 1];
    snprintf(name, sizeof name, "field%d", i);
    plain_read(state, name, value, FIELD_SIZE);
    printf("<input type=\"text\" maxlength=\"%d\" value=\"", FIELD_CHARACTERS);
    plain_escape(value);
    printf("\" name=\"%s\">\r\n", name);
  }
}

int main(void) {
#ifdef BENCH_FCGI
  if (FCGI_Accept() < 0) return 1;
#endif
  show();
  return 0;
}
