#include "shared/path.h"

#include <stdio.h>

void path_join(char path[PATH_SIZE], const char* folder, const char* name) {
  int length = snprintf(path, PATH_SIZE, "%s/%s", folder, name);
  if (length < 0 || length >= PATH_SIZE) path[0] = '\0';
}
