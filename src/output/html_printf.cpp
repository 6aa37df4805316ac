#include <stdarg.h>
#include <stdio.h>
#include <string.h>

#include "items/stack_buffer.h"
#include "tavik.h"

namespace {

struct Conversion {
  const char* percent;
  const char* last = nullptr;  // the byte that ends it, the format's NUL included
  uint32_t number = 0;
  uint32_t limit = 0;
  bool has_limit = false;
  bool is_long = false;
};

Conversion read_conversion(const char* percent, va_list* arguments) {
  Conversion result{percent};
  const char* at = percent + 1;
  // The search finds the NUL as well.
  for (; strchr("%csdiuxX", *at) == nullptr; ++at) {
    if (*at >= '0' && *at <= '9') {
      result.number = result.number * 10 + static_cast<uint32_t>(*at - '0');
      result.limit = result.number;
      result.has_limit = true;
    } else if (*at == '*') {
      const auto limit = va_arg(*arguments, int32_t);
      if (limit < 0) continue;
      result.limit = static_cast<uint32_t>(limit);
      result.has_limit = true;
    } else if (*at == 'l') {
      result.is_long = true;
    }
  }
  result.last = at;
  return result;
}

uint32_t print_characters(const Conversion& conversion, uint32_t character) {
  uint32_t written = 0;
  for (uint32_t left = conversion.has_limit ? conversion.limit : 1; left > 0; --left) {
    written += html_print_ucs2(character);
  }
  return written;
}

// Has the C library print an integer, with the conversion as it stands. A function of its own,
// never inlined, so that the copy of the conversion leaves the stack at once.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
[[gnu::noinline]] int32_t print_integer(const Conversion& conversion, va_list* arguments) {
  const auto length = static_cast<size_t>(conversion.last - conversion.percent) + 1;
  char* const format = TAVIK_STACK_BUFFER(length + 1);
  memcpy(format, conversion.percent, length);
  format[length] = '\0';
  if (conversion.is_long) return printf(format, va_arg(*arguments, long));
  return printf(format, va_arg(*arguments, int32_t));
}
#pragma GCC diagnostic pop

uint32_t print_conversion(const Conversion& conversion, va_list* arguments) {
  switch (*conversion.last) {
    case '\0':
      return 0;
    case '%':
      return html_print_ucs2('%');
    case 'c':
      return print_characters(conversion, va_arg(*arguments, uint32_t));
    case 's':
      return html_print_text_limit(conversion.has_limit ? conversion.limit : UINT32_MAX,
                                   va_arg(*arguments, const char*), UINT32_MAX);
    default:
      return static_cast<uint32_t>(print_integer(conversion, arguments));
  }
}

uint32_t print_literal(bool raw, const char* text, uint32_t length) {
  return raw ? print_mem(text, length) : html_print_text_limit(UINT32_MAX, text, length);
}

}  // namespace

int32_t html_printf(uint32_t raw, const char* format, ...) {
  va_list arguments;
  va_start(arguments, format);
  uint32_t total = 0;
  while (*format != '\0') {
    const char* const percent = strchrnul(format, '%');
    total += print_literal(raw != 0, format, static_cast<uint32_t>(percent - format));
    if (*percent == '\0') break;
    const Conversion conversion = read_conversion(percent, &arguments);
    total += print_conversion(conversion, &arguments);
    if (*conversion.last == '\0') break;
    format = conversion.last + 1;
  }
  va_end(arguments);
  return static_cast<int32_t>(total);
}
