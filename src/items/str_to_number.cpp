#include <strings.h>

#include "tavik.h"

uint32_t str_to_uint(const char* text) {
  uint32_t value = 0;
  if (text == nullptr) return value;
  for (; *text >= '0' && *text <= '9'; ++text) {
    value = value * 10 + static_cast<uint32_t>(*text - '0');
  }
  return value;
}

int32_t str_to_sint(const char* text) {
  if (text == nullptr) return 0;
  if (*text == '-') return static_cast<int32_t>(0U - str_to_uint(text + 1));
  return static_cast<int32_t>(str_to_uint(text));
}

uint32_t bool_to_uint(const char* text) {
  if (text == nullptr || strcasecmp(text, "false") == 0) return 0;
  if (strcasecmp(text, "true") == 0) return 1;
  return str_to_uint(text) != 0 ? 1 : 0;
}
