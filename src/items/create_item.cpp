#include <fcntl.h>
#include <stdio.h>
#include <string.h>

#include "items/stack_buffer.h"
#include "items/unique_fd.h"
#include "items/value_line.h"
#include "tavik.h"

int32_t create_item(const char* directory, const char* name, const char* value, int32_t size) {
  if (value == nullptr) return -1;
  const tavik::UniqueFd item(open_path_name(directory, name, O_WRONLY | O_CREAT | O_TRUNC, 0666));
  if (!item.is_open()) return item.get();
  const int32_t length = tavik::limited_length(value, size);
  char* const line = TAVIK_STACK_BUFFER(static_cast<size_t>(length) + 1);
  return tavik::write_line(item.get(), value, length, line);
}

int32_t create_item_uint(const char* directory, const char* name, uint32_t value) {
  char text[tavik::kNumberBuffer];
  const int32_t length = snprintf(text, sizeof text, "%u", value);
  return create_item(directory, name, text, length);
}

int32_t create_concat_item(const char* directory, const char* name, const char* first,
                           const char* second) {
  if (directory == nullptr || name == nullptr || first == nullptr || second == nullptr) return -1;
  const size_t first_length = strlen(first);
  const size_t second_length = strlen(second);
  const size_t length = first_length + second_length;
  if (length >= INT32_MAX) return -1;
  char* const value = TAVIK_STACK_BUFFER(length + 1);
  memcpy(value, first, first_length);
  memcpy(value + first_length, second, second_length + 1);
  return create_item(directory, name, value, static_cast<int32_t>(length));
}
