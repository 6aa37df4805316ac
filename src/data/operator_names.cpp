#include <stdlib.h>

#include "data/chain.h"
#include "items/control_char.h"
#include "tavik.h"

static_assert(sizeof(copn_entry::numeric) == 7 && sizeof(copn_entry::name) == 27);
static_assert(offsetof(copn_entry, name) == sizeof(void*) + 7);

namespace {

tavik::Chain<copn_entry> operators;

// Takes a quoted field off the line, cut to what out holds. Gives its length, 0 without a quote.
uint32_t take_quoted(const char** cursor, char* out, uint32_t size) {
  uint32_t length = 0;
  const char* next = *cursor;
  if (*next == '"') {
    for (++next; !tavik::is_control(*next) && *next != '"'; ++next) {
      if (length < size - 1) out[length++] = *next;
    }
    if (*next == '"') ++next;
  }
  out[length] = '\0';
  *cursor = next;
  return length;
}

int32_t take_line(uintptr_t /*context*/, char* line) {
  copn_entry entry = {};
  const char* cursor = line;
  if (take_quoted(&cursor, entry.numeric, sizeof entry.numeric) == 0 || *cursor != ',') return 0;
  ++cursor;
  if (take_quoted(&cursor, entry.name, sizeof entry.name) == 0) return 0;
  auto* const kept = static_cast<copn_entry*>(malloc(sizeof entry));
  if (kept == nullptr) return 0;
  *kept = entry;
  operators.append(kept);
  return 0;
}

}  // namespace

int32_t read_copn_file(const char* path) {
  return rd_file_line(path, take_line, 0);
}

copn_entry* copn_ptr(void) {
  return operators.head;
}

void free_copn(void) {
  while (copn_entry* const entry = operators.head) {
    operators.head = entry->next;
    free(entry);
  }
  operators.tail = nullptr;
}
