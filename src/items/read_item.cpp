#include <fcntl.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <unistd.h>

#include "items/control_char.h"
#include "items/unique_fd.h"
#include "tavik.h"

using tavik::UniqueFd;

int32_t read_item_fd(int32_t fd, char* buffer, int32_t count) {
  if (fd < 0) return fd;
  if (buffer == nullptr) return -1;
  const int32_t got = full_read_fd(fd, buffer, count);
  if (got < 0) return got;
  buffer[got] = '\0';
  int32_t length = 0;
  while (!tavik::is_control(buffer[length])) ++length;
  buffer[length] = '\0';
  return length;
}

int32_t read_item(const char* directory, const char* name, char* buffer, int32_t count) {
  if (buffer == nullptr) return -1;
  const UniqueFd item(open_path_name(directory, name, O_RDONLY, 0));
  buffer[0] = '\0';
  return read_item_fd(item.get(), buffer, count);
}

int32_t read_item_alloc_fd(int32_t fd, char** result, int32_t least) {
  if (fd < 0) return fd;
  if (result == nullptr) return -1;
  struct stat status;
  if (fstat(fd, &status) != 0) return -1;
  int64_t capacity = least < 0 ? getpagesize() - 1 : least;
  if (status.st_size > capacity) capacity = status.st_size;
  if (capacity > INT32_MAX) return -1;
  auto* const buffer = static_cast<char*>(malloc(static_cast<size_t>(capacity) + 1));
  if (buffer == nullptr) return -1;
  *result = buffer;
  return read_item_fd(fd, buffer, static_cast<int32_t>(capacity));
}

int32_t read_item_alloc(const char* directory, const char* name, char** result) {
  const UniqueFd item(open_path_name(directory, name, O_RDONLY, 0));
  return read_item_alloc_fd(item.get(), result, -1);
}
