#include "output/close_tag.h"

#include <stdio.h>

#include "tavik.h"

namespace tavik {

int32_t close_tag(uint32_t flags) {
  print_flags(flags);
  return putc_unlocked('>', stdout);
}

int32_t close_tag(uint32_t flags, const char* format, va_list arguments) {
  if (format != nullptr) vprintf(format, arguments);
  return close_tag(flags);
}

}  // namespace tavik
