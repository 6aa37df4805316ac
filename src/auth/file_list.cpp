#include "auth/file_list.h"

#include <stdlib.h>

namespace tavik {

namespace {

int is_visible(const struct dirent* file) {
  return file->d_name[0] != '.' ? 1 : 0;
}

}  // namespace

int32_t list_files(const char* directory, struct dirent*** files) {
  const int32_t count =
      directory == nullptr ? -1 : scandir(directory, files, is_visible, alphasort);
  // What scandir() leaves in the pointer after a failure differs between C libraries.
  if (count < 0) *files = nullptr;
  return count;
}

void free_files(struct dirent** files, int32_t count) {
  for (int32_t i = 0; i < count; ++i) free(files[i]);
  free(files);
}

}  // namespace tavik
