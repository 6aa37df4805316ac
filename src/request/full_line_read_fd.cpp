#include "tavik.h"

namespace {

// Reads to the end of the input; the last byte of each piece goes to last.
int32_t run_on(int32_t fd, char* last) {
  for (;;) {
    char piece[256];
    const int32_t got = full_read_fd(fd, piece, sizeof piece);
    if (got < 1) return got;
    *last = piece[got - 1];
  }
}

}  // namespace

int32_t full_line_read_fd(int32_t fd, char* buffer, uint32_t size) {
  if (size < 2) return -1;
  const int32_t got = full_read_fd(fd, buffer, 2);
  if (got < 2) return got < 0 ? got : 0;
  // One byte at a time: what follows the line end belongs to whoever reads next.
  const uint32_t last = (size < INT32_MAX ? size : INT32_MAX) - 1;
  uint32_t length = 0;
  while (buffer[length] != '\r' || buffer[length + 1] != '\n') {
    ++length;
    if (length == last) return run_on(fd, buffer + last);
    const int32_t more = full_read_fd(fd, buffer + length + 1, 1);
    if (more < 1) return more;
  }
  buffer[length] = '\0';
  return static_cast<int32_t>(length);
}
