#include <string.h>

#include "items/heap_text.h"
#include "tavik.h"

int32_t read_items_str(int32_t (*callback)(uintptr_t context, char* word), uintptr_t context,
                       const char* directory, const char* name) {
  if (callback == nullptr) return -1;
  tavik::HeapText value;
  const int32_t length = read_item_alloc(directory, name, value.out());
  if (length < 0) return length;
  for (char* next = value.get(); next != nullptr;) {
    char* const word = next + strspn(next, " ");
    next = strchr(word, ' ');
    if (next != nullptr) *next++ = '\0';
    if (*word != '\0') callback(context, word);
  }
  return length;
}
