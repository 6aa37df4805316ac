// An item as it is written: the value's bytes and one LF, in a single write.
#ifndef TAVIK_ITEMS_VALUE_LINE_H
#define TAVIK_ITEMS_VALUE_LINE_H

#include <stdint.h>
#include <string.h>

#include "tavik.h"

namespace tavik {

// The bytes that a decimal number of 32 bits, a LF and a NUL take at most, and some to spare.
constexpr int32_t kNumberBuffer = 16;

// The value's length in bytes, or size if that is less; a negative size counts as 0.
inline int32_t limited_length(const char* value, int32_t size) {
  return size < 1 ? 0 : static_cast<int32_t>(strnlen(value, static_cast<size_t>(size)));
}

// Writes the first length bytes of value. buffer has room for them and the LF.
inline int32_t write_line(int32_t fd, const char* value, int32_t length, char* buffer) {
  memcpy(buffer, value, static_cast<size_t>(length));
  buffer[length] = '\n';
  return full_write_fd(fd, buffer, length + 1);
}

}  // namespace tavik

#endif
