#include <errno.h>
#include <stdint.h>
#include <unistd.h>

#include "tavik.h"

int32_t full_read_fd(int32_t fd, void* buffer, int32_t count) {
  if (count < 1) return 0;
  if (buffer == nullptr) return -1;
  int32_t got = 0;
  while (got < count) {
    const ssize_t answer =
        read(fd, static_cast<char*>(buffer) + got, static_cast<size_t>(count - got));
    if (answer == 0) break;
    if (answer > 0) {
      got += static_cast<int32_t>(answer);
    } else if (errno != EINTR) {
      return -1;
    }
  }
  return got;
}

int32_t full_write_fd(int32_t fd, const void* buffer, int32_t count) {
  if (count < 1) return 0;
  if (buffer == nullptr) return -1;
  int32_t done = 0;
  while (done < count) {
    const ssize_t answer =
        write(fd, static_cast<const char*>(buffer) + done, static_cast<size_t>(count - done));
    if (answer >= 0) {
      done += static_cast<int32_t>(answer);
    } else if (errno != EINTR) {
      return -1;
    }
  }
  return done;
}

int32_t full_copy_fd(int32_t from, int32_t to) {
  char buffer[4096];
  int64_t total = 0;
  for (;;) {
    const int32_t got = full_read_fd(from, buffer, sizeof buffer);
    if (got < 0) return -1;
    if (got == 0) return total <= INT32_MAX ? static_cast<int32_t>(total) : -1;
    if (full_write_fd(to, buffer, got) < 0) return -1;
    total += got;
  }
}
