#include <fcntl.h>
#include <stdio.h>
#include <string.h>

#include "items/stack_buffer.h"
#include "items/unique_fd.h"
#include "items/value_line.h"
#include "tavik.h"

using tavik::UniqueFd;

namespace {

constexpr int32_t kNumberSize = 15;

enum class OnDifference { kTell, kWrite };

// 0: the item holds the value's first length bytes; 1: something else; negative: unreadable.
// count is how much of the item is looked at.
int32_t compare_stored(const char* directory, const char* name, const char* value, int32_t length,
                       char* buffer, int32_t count) {
  const UniqueFd item(open_path_name(directory, name, O_RDONLY, 0));
  const int32_t stored = read_item_fd(item.get(), buffer, count);
  if (stored < 0) return stored;
  return stored == length && memcmp(value, buffer, static_cast<size_t>(length)) == 0 ? 0 : 1;
}

int32_t compare_update_item(const char* directory, const char* name, const char* value,
                            int32_t size, OnDifference action) {
  if (value == nullptr) return -1;
  const int32_t length = tavik::limited_length(value, size);
  // One byte more than the value tells a longer stored text, so a large size costs no stack.
  const int32_t count = length < size ? length + 1 : length;
  char* const buffer = TAVIK_STACK_BUFFER(static_cast<size_t>(count) + 1);
  const int32_t compared = compare_stored(directory, name, value, length, buffer, count);
  if (compared <= 0 || action == OnDifference::kTell) return compared;
  const UniqueFd item(open_path_name(directory, name, O_WRONLY | O_TRUNC, 0));
  if (!item.is_open()) return item.get();
  return tavik::write_line(item.get(), value, length, buffer);
}

}  // namespace

int32_t update_item(const char* directory, const char* name, const char* value, int32_t size) {
  return compare_update_item(directory, name, value, size, OnDifference::kWrite);
}

int32_t update_item_uint(const char* directory, const char* name, uint32_t value) {
  char text[tavik::kNumberBuffer];
  snprintf(text, sizeof text, "%u", value);
  return update_item(directory, name, text, kNumberSize);
}

int32_t compare_item(const char* directory, const char* name, const char* value, int32_t size) {
  return compare_update_item(directory, name, value, size, OnDifference::kTell);
}
