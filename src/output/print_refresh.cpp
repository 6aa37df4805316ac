#include <stdarg.h>
#include <stdio.h>

#include "items/heap_text.h"
#include "tavik.h"

namespace {

// False, and nothing printed, if the format yields no URL.
[[gnu::format(printf, 2, 0)]] bool print_meta(uint32_t seconds, const char* format,
                                              va_list arguments) {
  const tavik::HeapText url(tavik::format_text(format, arguments));
  if (url.get() == nullptr || url.get()[0] == '\0') return false;
  printf("<meta http-equiv=\"refresh\" content=\"%u; URL=%s\">\r\n", seconds, url.get());
  return true;
}

}  // namespace

void print_head_refresh(uint32_t seconds, const char* format, ...) {
  if (format == nullptr) {
    printf("<meta http-equiv=\"refresh\" content=\"%u\">\r\n", seconds);
    return;
  }
  va_list arguments;
  va_start(arguments, format);
  // A tag without content asks for nothing.
  if (!print_meta(seconds, format, arguments)) print_str("<meta http-equiv=\"refresh\">\r\n");
  va_end(arguments);
}

void print_refresh(const char* first, const char* second, uint32_t seconds, const char* format,
                   ...) {
  print_head_p1(first, second, nullptr);
  va_list arguments;
  va_start(arguments, format);
  print_meta(seconds, format, arguments);
  va_end(arguments);
  print_str("</head>\r\n</html>\r\n");
}
