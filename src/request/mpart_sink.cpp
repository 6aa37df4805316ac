#include <stdio.h>

#include "tavik.h"

int32_t mpart_fwrite(void* stream, const void* data, uint32_t length) {
  if (stream == nullptr) return -1;
  fwrite(data, length, 1, static_cast<FILE*>(stream));
  return 0;
}

int32_t mpart_write_fd(void* fd, const void* data, uint32_t length) {
  if (fd == nullptr) return -1;
  const int32_t target = *static_cast<const int32_t*>(fd);
  const uint32_t most = length < INT32_MAX ? length : INT32_MAX;
  if (target > 0) full_write_fd(target, data, static_cast<int32_t>(most));
  return 0;
}
