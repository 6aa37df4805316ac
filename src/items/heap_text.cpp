#include "items/heap_text.h"

#include <stdio.h>

namespace tavik {

char* format_text(const char* format, va_list arguments) {
  if (format == nullptr) return nullptr;
  char* text = nullptr;
  // What vasprintf() leaves in the pointer after a failure differs between C libraries.
  return vasprintf(&text, format, arguments) < 0 ? nullptr : text;
}

bool grow(char*& buffer, uint32_t& size) {
  if (size > INT32_MAX - kGrowth) return false;
  auto* const grown = static_cast<char*>(realloc(buffer, size + kGrowth));
  if (grown == nullptr) return false;
  buffer = grown;
  size += kGrowth;
  return true;
}

}  // namespace tavik
