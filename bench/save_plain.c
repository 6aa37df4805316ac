#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <unistd.h>

#include "plain.h"
#include "work.h"

static void save(const char* name, const char* value) {
  if (strncmp(name, "field", 5) == 0) plain_update(getenv(STATE_VARIABLE), name, value);
}

int main(void) {
  size_t length = (size_t)atoi(getenv("CONTENT_LENGTH"));
  char* form = malloc(length + 1);
  size_t got = 0;
  for (ssize_t n; got < length && (n = read(0, form + got, length - got)) > 0;) got += (size_t)n;
  form[got] = '\0';
  plain_decode(form, save);
  free(form);
  fputs(HEADER "saved\r\n", stdout);
  return 0;
}
