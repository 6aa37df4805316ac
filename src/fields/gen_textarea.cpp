#include "output/close_tag.h"
#include "tavik.h"

void gen_textarea(const char* text, uint32_t flags, const char* format, ...) {
  print_str("<textarea");
  va_list arguments;
  va_start(arguments, format);
  tavik::close_tag(flags, format, arguments);
  va_end(arguments);
  html_print_text(text);
  print_str("</textarea>");
}
