#include "tavik.h"

uint32_t print_xstr(const char* text, uint32_t flags) {
  if ((flags & PF_RAW) == 0) return html_print_text(text);
  return (flags & PF_CRLF) != 0 ? print_str_xcrlf(text) : print_str(text);
}
