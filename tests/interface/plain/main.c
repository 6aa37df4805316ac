#include "plain.h"

int failures;

int printed(const char* text) {
  static off_t start;
  char found[2048];
  fflush(stdout);
  ssize_t length = pread(STDOUT_FILENO, found, sizeof found - 1, start);
  if (length < 0) return 0;
  start += length;
  found[length] = '\0';
  if (strcmp(found, text) != 0) fprintf(stderr, "printed: %s\n", found);
  return strcmp(found, text) == 0;
}

int main(void) {
  char directory[] = "tavik-XXXXXX";
  if (freopen("page", "w+", stdout) == NULL || mkdtemp(directory) == NULL) return 1;
  request();
  output(directory);
  items(directory);
  text_fields(directory);
  choice_fields(directory);
  addresses(directory);
  passwords(directory);
  certificates(directory);
  network();
  commands(directory);
  data(directory);
  CHECK(rmdir(directory) == 0);
  return failures != 0;
}
