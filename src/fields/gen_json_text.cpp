#include <stdio.h>

#include "fields/byte_size.h"
#include "items/stack_buffer.h"
#include "tavik.h"

uint32_t gen_json_text(const char* value, const char* json_name, uint32_t flags) {
  if (json_name == nullptr) return flags;
  print_json_flags(flags);
  if (value == nullptr) flags |= PF_DISABLED;
  if ((flags & PF_DISABLED) != 0) {
    printf("\"%s\": null", json_name);
  } else {
    printf("\"%s\": \"%s\"", json_name, value);
  }
  return flags | PF_JSON_MORE;
}

uint32_t gen_json_text_item(const char* directory, const char* name, int32_t maximum,
                            const char* json_name, uint32_t flags) {
  const int32_t size = tavik::byte_size(maximum);
  char* const value = TAVIK_STACK_BUFFER(static_cast<size_t>(size) + 1);
  flags = rd_textbox_item(directory, name, value, size, static_cast<uint32_t>(maximum), flags);
  return gen_json_text(value, json_name, flags);
}
