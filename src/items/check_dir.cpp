#include <dirent.h>

#include "tavik.h"

int32_t check_dir(const char* path) {
  if (path == nullptr) return -1;
  DIR* const directory = opendir(path);
  if (directory == nullptr) return -1;
  int32_t count = 0;
  while (const struct dirent* const entry = readdir(directory)) {
    if (entry->d_name[0] != '.') ++count;
  }
  closedir(directory);
  return count;
}
