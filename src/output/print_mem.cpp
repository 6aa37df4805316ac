#include <stdio.h>
#include <string.h>

#include "tavik.h"

// The unlocked form, since a page is a single thread and this is its innermost loop.
uint32_t print_mem(const void* data, uint32_t length) {
  if (data == nullptr) return 0;
  const auto* const bytes = static_cast<const unsigned char*>(data);
  FILE* const out = stdout;
  uint32_t written = 0;
  while (written < length && putc_unlocked(bytes[written], out) != EOF) ++written;
  return written;
}

uint32_t print_str(const char* text) {
  return text == nullptr ? 0 : print_mem(text, static_cast<uint32_t>(strlen(text)));
}

uint32_t print_str_xcrlf(const char* text) {
  if (text == nullptr) return 0;
  uint32_t written = 0;
  while (const char* const line_end = strchr(text, '\n')) {
    written += print_mem(text, static_cast<uint32_t>(line_end - text));
    written += print_mem("\r\n", 2);
    text = line_end + 1;
  }
  return written + print_str(text);
}
