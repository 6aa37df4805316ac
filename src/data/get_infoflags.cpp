#include <string.h>

#include "tavik.h"

static_assert(sizeof(infoflag_row) == 8);

namespace {

// A negative position lies in no text.
bool covers(const char* text, int32_t position) {
  return text != nullptr && static_cast<uint32_t>(position) < strlen(text);
}

bool is_on(int32_t position, const char* first, const char* second) {
  const char* const text = covers(first, position) ? first : second;
  return covers(text, position) && static_cast<unsigned char>(text[position]) > '0';
}

}  // namespace

uint32_t get_infoflags(uint32_t flags, const infoflag_row* table, const char* first,
                       const char* second) {
  if (first == nullptr || *first == '\0') return 0;
  if (table == nullptr) return flags;
  for (; table->mask != 0; ++table) {
    if (!is_on(table->position, first, second)) flags &= ~table->mask;
  }
  return flags;
}
