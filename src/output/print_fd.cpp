#include <stdio.h>
#include <sys/stat.h>

#include "tavik.h"

namespace {

constexpr int32_t kChunk = 4096;

}  // namespace

int32_t print_fd(int32_t fd) {
  struct stat status;
  if (fstat(fd, &status) != 0) return -1;
  const int64_t size = status.st_size;
  char buffer[kChunk];
  const int32_t step = size < kChunk ? static_cast<int32_t>(size) : kChunk;
  int64_t total = 0;
  while (total < size) {
    const int32_t got = full_read_fd(fd, buffer, step);
    if (got < 0) return -1;
    if (got == 0) break;
    if (fwrite(buffer, static_cast<size_t>(got), 1, stdout) != 1) return -1;
    total += got;
  }
  return total <= INT32_MAX ? static_cast<int32_t>(total) : -1;
}
