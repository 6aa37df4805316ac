#include <fcntl.h>
#include <unistd.h>

#include "items/heap_text.h"
#include "items/unique_fd.h"
#include "tavik.h"

using tavik::UniqueFd;

namespace {

constexpr int32_t kNumberLength = 15;

}  // namespace

int32_t read_item_uint_fd(int32_t fd, uint32_t* result) {
  char text[kNumberLength + 1];
  const int32_t length = read_item_fd(fd, text, kNumberLength);
  if (length <= 0) return length;
  const uint32_t value = str_to_uint(text);
  if (result == nullptr) return value > INT32_MAX ? INT32_MAX : static_cast<int32_t>(value);
  *result = value;
  return length;
}

int32_t read_item_uint(const char* directory, const char* name, uint32_t* result) {
  const UniqueFd item(open_path_name(directory, name, O_RDONLY, 0));
  return read_item_uint_fd(item.get(), result);
}

int32_t read_item_uint_fmt(uint32_t* result, const char* format, ...) {
  va_list arguments;
  va_start(arguments, format);
  const tavik::HeapText path(tavik::format_text(format, arguments));
  va_end(arguments);
  if (path.get() == nullptr || path.get()[0] == '\0') return -1;
  const UniqueFd item(open(path.get(), O_RDONLY));
  return read_item_uint_fd(item.get(), result);
}

int32_t read_item_sint_fd(int32_t fd, int32_t* result) {
  char text[kNumberLength + 1];
  const int32_t length = read_item_fd(fd, text, kNumberLength);
  if (length > 0 && result != nullptr) *result = str_to_sint(text);
  return length;
}

int32_t read_item_sint(const char* directory, const char* name, int32_t* result) {
  const UniqueFd item(open_path_name(directory, name, O_RDONLY, 0));
  return read_item_sint_fd(item.get(), result);
}

int32_t call_uint(const char* directory, const char* name, int32_t (*func)(uint32_t value)) {
  if (func == nullptr) return -2;
  uint32_t value = UINT32_MAX;
  if (read_item_uint(directory, name, &value) < 0) return -1;
  return func(value);
}
