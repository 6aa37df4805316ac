#include <stdarg.h>
#include <stdio.h>

#include "fields/bullet.h"
#include "fields/byte_size.h"
#include "fields/open_tag.h"
#include "items/stack_buffer.h"
#include "items/value_line.h"
#include "output/close_tag.h"
#include "tavik.h"

namespace {

uint32_t character_limit(int32_t maximum) {
  return maximum < 0 ? INT32_MAX : static_cast<uint32_t>(maximum);
}

int32_t bullet_count(int32_t maximum, const char* value, uint32_t flags) {
  uint32_t count = character_limit(maximum);
  if ((flags & PF_DISABLED) == 0) count = utf8_length(value, count, nullptr);
  // Without a maximum the limit can come up as the count, for two thousand million bullets.
  if (maximum < 0) {
    const int32_t bytes = value == nullptr ? 0 : tavik::limited_length(value, INT32_MAX);
    if (count > static_cast<uint32_t>(bytes)) return bytes;
  }
  return static_cast<int32_t>(count);
}

void print_bullets(int32_t count, const char* value, uint32_t flags) {
  html_printf(1, " value=\"%*c\"", count, tavik::kBullet);
  if ((flags & PF_DATA_VALUE) != 0) html_printf(1, " data-value=\"%*s\"", count, value);
}

}  // namespace

int32_t vgen_xtextbox(int32_t maximum, const char* value, uint32_t flags, const char* format,
                      va_list arguments) {
  const uint32_t limit = character_limit(maximum);
  printf("<input type=\"%s\"", (flags & PF_PASSWORD) != 0 ? "password" : "text");
  if ((flags & PF_SIZE) != 0) printf(" size=\"%u\"", limit);
  tavik::print_maxlength(limit, flags);
  if ((flags & (PF_PASSWORD | PF_MASKED)) != 0) {
    print_bullets(bullet_count(maximum, value, flags), value, flags);
  } else if (value != nullptr) {
    html_printf(1, " value=\"%*s\"", limit, value);
  }
  return tavik::close_tag(flags, format, arguments);
}

int32_t gen_xtextbox(int32_t maximum, const char* value, uint32_t flags, const char* format, ...) {
  va_list arguments;
  va_start(arguments, format);
  const int32_t result = vgen_xtextbox(maximum, value, flags, format, arguments);
  va_end(arguments);
  return result;
}

uint32_t gen_xtextbox_item(const char* directory, const char* name, int32_t maximum, uint32_t flags,
                           const char* format, ...) {
  const int32_t size = tavik::byte_size(maximum);
  char* const value = TAVIK_STACK_BUFFER(static_cast<size_t>(size) + 1);
  flags = rd_textbox_item(directory, name, value, size, character_limit(maximum), flags);
  va_list arguments;
  va_start(arguments, format);
  vgen_xtextbox(maximum, value, flags, format, arguments);
  va_end(arguments);
  return flags;
}
