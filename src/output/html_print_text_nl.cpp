#include "tavik.h"

namespace {

constexpr char kEscape = 0x1B;

uint32_t print_markup(char code) {
  switch (code) {
    case 'B':
      return print_str("<b>");
    case 'b':
      return print_str("</b>");
    case 'U':
      return print_str("<u>");
    case 'u':
      return print_str("</u>");
    default:
      return 0;
  }
}

}  // namespace

uint32_t html_print_text_nl(const char* text) {
  if (text == nullptr) return 0;
  uint32_t written = 0;
  bool escaped = false;
  while (*text != '\0') {
    if (escaped) {
      written += print_markup(*text++);
      escaped = false;
    } else if (*text == kEscape) {
      ++text;
      escaped = true;
    } else if (*text == '\n') {
      ++text;
      written += print_str("<br>");
    } else {
      written += html_print_ucs2(utf8_to_ucs2(&text, UINT32_MAX));
    }
  }
  return written;
}
