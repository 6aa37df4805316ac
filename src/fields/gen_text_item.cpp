#include <unistd.h>

#include "items/stack_buffer.h"
#include "tavik.h"

int32_t gen_text_item(const char* directory, const char* name) {
  const int32_t page = getpagesize();
  char* const value = TAVIK_STACK_BUFFER(static_cast<size_t>(page));
  const int32_t length = read_item(directory, name, value, page - 1);
  if (length > 0) html_print_text(value);
  return length;
}
