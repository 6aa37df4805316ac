#include "fields/open_tag.h"

#include <stdio.h>

#include "tavik.h"

namespace tavik {

void print_name(const char* name) {
  if (name != nullptr) printf(" name=\"%s\"", name);
}

void open_text_input(const char* name) {
  print_str("<input type=\"text\"");
  print_name(name);
}

void print_maxlength(uint32_t maximum, uint32_t flags) {
  if ((flags & PF_READONLY) == 0) printf(" maxlength=\"%u\"", maximum);
}

void print_format(const char* format, va_list arguments) {
  if (format != nullptr) vprintf(format, arguments);
}

}  // namespace tavik
