#include <fcntl.h>
#include <stdio.h>
#include <string.h>

#include "items/stack_buffer.h"
#include "items/unique_fd.h"
#include "items/value_line.h"
#include "tavik.h"

using tavik::UniqueFd;

int32_t write_item_uint(const char* directory, const char* name, uint32_t value) {
  const UniqueFd item(open_path_name(directory, name, O_WRONLY | O_TRUNC, 0));
  if (!item.is_open()) return item.get();
  char line[tavik::kNumberBuffer];
  const int32_t length = snprintf(line, sizeof line, "%u\n", value);
  return full_write_fd(item.get(), line, length);
}

int32_t write_item_text(const char* directory, const char* name, const char* text) {
  const char* const value = text == nullptr ? "" : text;
  const size_t length = strlen(value);
  if (length >= INT32_MAX) return -1;
  const UniqueFd item(open_path_name(directory, name, O_WRONLY | O_TRUNC, 0));
  if (!item.is_open()) return item.get();
  char* const line = TAVIK_STACK_BUFFER(length + 1);
  return tavik::write_line(item.get(), value, static_cast<int32_t>(length), line);
}
