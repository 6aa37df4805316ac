#include "fields/open_tag.h"
#include "output/close_tag.h"
#include "tavik.h"

namespace {

void print_bounds(const uint32_t* first, const uint32_t* last) {
  print_str(" value=\"");
  if (first != nullptr) printf("%u", *first);
  const bool single = first != nullptr && (last == nullptr || *last == *first);
  if (!single) {
    print_str("-");
    if (last != nullptr) printf("%u", *last);
  }
  print_str("\"");
}

}  // namespace

int32_t gen_xrangebox(uint32_t maxlength, const uint32_t* first, const uint32_t* last,
                      const char* text, uint32_t flags, const char* format, ...) {
  tavik::open_text_input();
  tavik::print_maxlength(maxlength, flags);
  va_list arguments;
  va_start(arguments, format);
  tavik::print_format(format, arguments);
  va_end(arguments);
  print_flags(flags);
  if (text != nullptr) {
    html_printf(1, " value=\"%s\"", text);
  } else {
    print_bounds(first, last);
  }
  return tavik::close_tag();
}
