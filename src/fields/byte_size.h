// Limits in characters as sizes in bytes.
#ifndef TAVIK_FIELDS_BYTE_SIZE_H
#define TAVIK_FIELDS_BYTE_SIZE_H

#include <stdint.h>

namespace tavik {

// The bytes that so many characters take at most; 0 for a negative number of them. With its
// terminator a text of that size is still an object that a 32-bit machine can have.
inline int32_t byte_size(int64_t characters) {
  if (characters < 0) return 0;
  return characters > INT32_MAX / 3 ? INT32_MAX - 1 : static_cast<int32_t>(characters * 3);
}

}  // namespace tavik

#endif
