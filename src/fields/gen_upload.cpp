#include "output/close_tag.h"
#include "tavik.h"

int32_t gen_upload(uint32_t flags, const char* format, ...) {
  print_str("<input type=\"file\"");
  va_list arguments;
  va_start(arguments, format);
  const int32_t closed = tavik::close_tag(flags, format, arguments);
  va_end(arguments);
  return closed;
}
