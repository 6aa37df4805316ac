// The descriptor that the next open() will give: another one tells that one was left open.
#pragma once

#include <unistd.h>

namespace test {

inline int next_descriptor() {
  const int fd = dup(STDIN_FILENO);
  close(fd);
  return fd;
}

}  // namespace test
