#include <stdio.h>
#include <stdlib.h>

#include "items/heap_text.h"
#include "output/html_encode.h"
#include "tavik.h"

namespace {

// Room for one escape and the terminator, with some to spare.
constexpr uint32_t kLeastRoom = 16;

}  // namespace

int32_t html_asprint_text(char** out, const char* text) {
  if (out == nullptr || text == nullptr) return -1;
  uint32_t size = tavik::kGrowth;
  auto* buffer = static_cast<char*>(malloc(size));
  if (buffer == nullptr) return -1;
  uint32_t length = 0;
  while (*text != '\0') {
    length += tavik::html_encode_ucs2(buffer + length, utf8_to_ucs2(&text, UINT32_MAX));
    if (*text == '\0' || size - length >= kLeastRoom) continue;
    if (!tavik::grow(buffer, size)) break;
  }
  buffer[length] = '\0';
  *out = buffer;
  return static_cast<int32_t>(size);
}

int32_t asprint_title(char** out, const char* text) {
  if (out == nullptr) return -1;
  tavik::HeapText escaped;
  if (html_asprint_text(escaped.out(), text) < 0 || escaped.get()[0] == '\0') return -1;
  char* title = nullptr;
  const int32_t length = asprintf(&title, " title=\"%s\"", escaped.get());
  if (length >= 0) *out = title;
  return length;
}
