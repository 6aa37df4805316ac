#include <string.h>

#include "items/stack_buffer.h"
#include "tavik.h"

int32_t save_selectbox_cert(char* buffer, int32_t limit, const char* text) {
  if (buffer == nullptr || text == nullptr) return 0;
  const auto length = static_cast<int32_t>(strnlen(text, INT32_MAX));
  const int32_t decoded = base64_decode(buffer, limit, text, length);
  if (decoded < 0) return 0;
  buffer[decoded] = '\0';
  return decoded;
}

int32_t update_cert_item(const char* directory, const char* name, const char* text, int32_t size) {
  if (text == nullptr) return -1;
  if (size < 0) size = 0;
  // One byte more than fits, so that a longer name is cut, and no more than the text can hold.
  const auto length = static_cast<int32_t>(strnlen(text, INT32_MAX - 1));
  const int32_t limit = length <= size ? length : size + 1;
  char* const value = TAVIK_STACK_BUFFER(static_cast<size_t>(limit) + 1);
  value[save_selectbox_cert(value, limit, text)] = '\0';
  return update_item(directory, name, value, size);
}
