#include <dirent.h>
#include <stdlib.h>
#include <string.h>
#include <unistd.h>

#include "tavik.h"

namespace {

int is_content(const struct dirent* entry) {
  return strcmp(entry->d_name, ".") != 0 && strcmp(entry->d_name, "..") != 0 ? 1 : 0;
}

}  // namespace

int32_t remove_dir_leaf(const char* path) {
  if (path == nullptr) return -1;
  struct dirent** entries = nullptr;
  const int32_t count = scandir(path, &entries, is_content, nullptr);
  for (int32_t i = 0; i < count; ++i) {
    remove_filef("%s/%s", path, entries[i]->d_name);
    free(entries[i]);
  }
  // What scandir() leaves in the pointer after a failure differs between C libraries.
  if (count >= 0) free(entries);
  return rmdir(path);
}
