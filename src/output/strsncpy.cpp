#include "tavik.h"

int32_t strsncpy(char* destination, uint32_t size, const char* source) {
  if (destination == nullptr || source == nullptr || size == 0) return -1;
  for (uint32_t i = 0; i < size; ++i) {
    destination[i] = source[i];
    if (source[i] == '\0') return static_cast<int32_t>(i);
  }
  destination[size - 1] = '\0';
  return -1;
}
