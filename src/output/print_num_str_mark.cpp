#include <string.h>

#include "tavik.h"

void print_num_str_mark(const char* text, const char* mark) {
  if (text == nullptr) return;
  const auto length = static_cast<uint32_t>(strlen(text));
  if (length <= 3 || mark == nullptr || *mark == '\0') {
    print_str(text);
    return;
  }
  const uint32_t first = length % 3 == 0 ? 3 : length % 3;
  print_mem(text, first);
  for (uint32_t position = first; position < length; position += 3) {
    print_str(mark);
    print_mem(text + position, 3);
  }
}
