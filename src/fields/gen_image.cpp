#include "output/close_tag.h"
#include "tavik.h"

void gen_image(const char* base, const char* file, const char* alternative, const char* format,
               ...) {
  if (base == nullptr || file == nullptr) return;
  printf("<img src=\"%s%s\"", base, file);
  if (alternative != nullptr) html_printf(1, " alt=\"%s\"", alternative);
  va_list arguments;
  va_start(arguments, format);
  tavik::close_tag(0, format, arguments);
  va_end(arguments);
}
