#include "output/html_print_item.h"

#include "items/stack_buffer.h"
#include "tavik.h"

namespace tavik {

int32_t html_print_item(const char* directory, const char* name, int32_t count) {
  if (count < 0) count = 0;
  char* const value = TAVIK_STACK_BUFFER(static_cast<size_t>(count) + 1);
  const int32_t length = read_item(directory, name, value, count);
  if (length > 0) html_print_text(value);
  return length;
}

}  // namespace tavik
