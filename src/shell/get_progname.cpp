#include <string.h>

#include "tavik.h"

const char* get_progname(uint32_t count, const char* path) {
  if (count == 0 || path == nullptr) return nullptr;
  const char* const slash = strrchr(path, '/');
  return slash == nullptr ? path : slash + 1;
}
