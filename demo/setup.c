/*
 * Makes the demo device's state: a folder that only its owner can enter, and in it each item that
 * is not there yet, with its first value.
 */
#include <errno.h>
#include <string.h>
#include <sys/stat.h>

#include "shared/first_values.h"
#include "tavik.h"

static int fail(const char* what) {
  fprintf(stderr, "setup: %s: %s\n", what, strerror(errno));
  return 1;
}

int main(int argc, char** argv) {
  if (argc != 2) {
    fprintf(stderr, "usage: setup STATE_FOLDER\n");
    return 2;
  }
  const char* folder = argv[1];
  if (mkdir(folder, 0700) != 0 && errno != EEXIST) return fail(folder);
  if (chmod(folder, 0700) != 0) return fail(folder);
  for (const item_value* item = first_values; item->name != NULL; item++) {
    if (stat_item(folder, item->name) == 0) continue;
    if (create_item(folder, item->name, item->value, (int32_t)strlen(item->value)) < 0) {
      return fail(item->name);
    }
  }
  return 0;
}
