#include "output/close_tag.h"
#include "tavik.h"

void gen_xbutton(const char* label, int32_t (*callback)(uint32_t flags), uint32_t flags,
                 const char* format, ...) {
  print_str("<button");
  print_str((flags & PF_SUBMIT) != 0 ? " type=\"submit\"" : " type=\"button\"");
  va_list arguments;
  va_start(arguments, format);
  tavik::close_tag(flags, format, arguments);
  va_end(arguments);
  if (callback != nullptr) callback(flags);
  html_print_text(label);
  print_str("</button>");
}
