#include <fcntl.h>
#include <string.h>
#include <sys/stat.h>
#include <unistd.h>

#include "items/join_directory.h"
#include "items/stack_buffer.h"
#include "tavik.h"

namespace {

int32_t open_path(const char* path, int32_t flags, uint32_t mode) {
  return open(path, flags, static_cast<mode_t>(mode));
}

int32_t unlink_path(const char* path, int32_t /*first*/, uint32_t /*second*/) {
  return unlink(path);
}

int32_t stat_path(const char* path, int32_t /*first*/, uint32_t /*second*/) {
  struct stat scratch;
  return stat(path, &scratch);
}

}  // namespace

int32_t _func_path_name(int32_t (*func)(const char* path, int32_t first, uint32_t second),
                        const char* directory, const char* name, int32_t first, uint32_t second) {
  if (func == nullptr || directory == nullptr || name == nullptr) return -1;
  const size_t directory_length = strlen(directory);
  const size_t name_size = strlen(name) + 1;
  char* const path = TAVIK_STACK_BUFFER(directory_length + 1 + name_size);
  const size_t seam = tavik::join_directory(path, directory, directory_length, name);
  memcpy(path + seam, name, name_size);
  return func(path, first, second);
}

int32_t open_path_name(const char* directory, const char* name, int32_t flags, uint32_t mode) {
  return _func_path_name(open_path, directory, name, flags, mode);
}

int32_t remove_item(const char* directory, const char* name) {
  return _func_path_name(unlink_path, directory, name, 0, 0);
}

int32_t stat_item(const char* directory, const char* name) {
  return _func_path_name(stat_path, directory, name, 0, 0);
}
