#include <stdio.h>
#include <stdlib.h>

#include "items/heap_text.h"
#include "tavik.h"

namespace {

// Below this room a larger buffer costs less than the short reads that would fill the rest.
constexpr uint32_t kLeastRoom = 256;

// Reads to the end of the stream, or as far as there is memory. The result is the text's length.
uint32_t read_all(FILE* stream, char*& buffer, uint32_t& capacity) {
  uint32_t length = 0;
  for (;;) {
    const size_t got = fread(buffer + length, 1, capacity - length - 1, stream);
    length += static_cast<uint32_t>(got);
    if (got == 0) return length;
    if (capacity - length <= kLeastRoom && !tavik::grow(buffer, capacity)) return length;
  }
}

}  // namespace

int32_t asprint_shell(char** out, const char* command) {
  if (out == nullptr || command == nullptr) return -1;
  FILE* const stream = popen(command, "r");
  if (stream == nullptr) return -1;
  uint32_t capacity = tavik::kGrowth;
  auto* buffer = static_cast<char*>(malloc(capacity));
  *out = nullptr;
  if (buffer != nullptr) {
    uint32_t length = read_all(stream, buffer, capacity);
    if (length > 0 && buffer[length - 1] == '\n') --length;
    buffer[length] = '\0';
    *out = buffer;
  }
  pclose(stream);
  return buffer != nullptr ? static_cast<int32_t>(capacity) : -1;
}

int32_t asprint_title_shell(char** out, const char* command) {
  if (out == nullptr) return -1;
  tavik::HeapText text;
  if (asprint_shell(text.out(), command) <= 0) return -1;
  return asprint_title(out, text.get());
}
