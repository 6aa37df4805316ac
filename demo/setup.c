/*
 * Makes the demo device's state: a folder that only its owner can enter, and in it each item that
 * is not there yet, with its first value.
 */
#include <errno.h>
#include <string.h>
#include <sys/stat.h>

#include "tavik.h"

static const struct {
  const char* name;
  const char* value;
} items[] = {
    {"owner", "Network team"},
    {"place", "Rack 4, below the patch panel"},
    {"remark", ""},
    {"hostname", "edge-4"},
    {"location", "Rack 4, below the patch panel"},
    {"contact", "Network team"},
    {"timeserver", "time.example.net"},
    {"passphrase", "change-me"},
};

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
  for (size_t i = 0; i < sizeof items / sizeof *items; i++) {
    const char* value = items[i].value;
    if (stat_item(folder, items[i].name) == 0) continue;
    if (create_item(folder, items[i].name, value, (int32_t)strlen(value)) < 0) {
      return fail(items[i].name);
    }
  }
  return 0;
}
