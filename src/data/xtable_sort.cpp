#include <stdlib.h>

#include "tavik.h"

namespace {

bool has_rows(const xtable* table, uint32_t count) {
  const xtable_row* row = table->head;
  for (; row != nullptr && count > 0; --count) row = row->next;
  return row == nullptr && count == 0;
}

// Stores the rows in order, with a null pointer behind the last.
void list_rows(const xtable* table, xtable_row** list) {
  for (xtable_row* row = table->head; row != nullptr; row = row->next) *list++ = row;
  *list = nullptr;
}

void relink_rows(xtable* table, xtable_row* const* list) {
  *table = {};
  for (; *list != nullptr; ++list) xtable_add_row(table, *list);
  xtable_index_row(table);
}

}  // namespace

uint32_t xtable_sort(xtable* table, uint32_t width, int (*compare)(const void*, const void*)) {
  if (table == nullptr || table->tail == nullptr) return 0;
  const uint32_t count = table->tail->index;
  if (count == 0) return 0;
  if (count == 1 || width != sizeof(xtable_row*) || compare == nullptr) return 1;
  // With a stale number the list would not fit the array.
  if (!has_rows(table, count)) return 1;
  auto** const list = static_cast<xtable_row**>(malloc((size_t{count} + 1) * sizeof(xtable_row*)));
  if (list == nullptr) return 1;
  list_rows(table, list);
  qsort(list, count, width, compare);
  relink_rows(table, list);
  free(list);
  return 1;
}
