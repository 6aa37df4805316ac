#include "items/behind_last.h"
#include "tavik.h"

const char* get_progname(uint32_t count, const char* path) {
  return count == 0 || path == nullptr ? nullptr : tavik::behind_last(path, '/');
}
