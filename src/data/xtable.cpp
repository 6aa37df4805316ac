#include <stdlib.h>
#include <string.h>

#include "tavik.h"

static_assert(sizeof(void*) != 4 || (sizeof(xtable) == 8 && sizeof(xtable_row) == 12));

namespace {

// Makes two rows neighbours. A missing one stands for that end of the table, so the other row
// becomes the head or the tail; with both missing the table is empty.
void link_rows(xtable* table, xtable_row* before, xtable_row* after) {
  (before != nullptr ? before->next : table->head) = after;
  (after != nullptr ? after->prev : table->tail) = before;
}

void move_behind_next(xtable* table, xtable_row* row) {
  xtable_row* const next = row->next;
  xtable_row* const last = next->next;
  link_rows(table, row->prev, next);
  link_rows(table, next, row);
  link_rows(table, row, last);
  xtable_index_row(table);
}

}  // namespace

xtable_row* xtable_new_row(xtable* table, uint32_t size) {
  if (table == nullptr || size < sizeof(xtable_row)) return nullptr;
  auto* const row = static_cast<xtable_row*>(malloc(size));
  if (row == nullptr) return nullptr;
  memset(row, 0, size);
  xtable_add_row(table, row);
  xtable_index_row(table);
  return row;
}

void xtable_add_row(xtable* table, xtable_row* row) {
  if (table == nullptr || row == nullptr) return;
  link_rows(table, table->tail, row);
  link_rows(table, row, nullptr);
}

void xtable_rm_row(xtable* table, xtable_row* row) {
  if (table == nullptr || row == nullptr) return;
  link_rows(table, row->prev, row->next);
  free(row);
}

uint32_t xtable_index_row(xtable* table) {
  if (table == nullptr) return 0;
  uint32_t number = 0;
  for (xtable_row* row = table->head; row != nullptr; row = row->next) row->index = ++number;
  return number;
}

xtable_row* xtable_search_row(xtable* table, uint32_t index) {
  xtable_row* row = table == nullptr ? nullptr : table->head;
  while (row != nullptr && row->index != index) row = row->next;
  return row;
}

int32_t xtable_del_row(xtable* table, uint32_t index) {
  xtable_row* const row = xtable_search_row(table, index);
  if (row == nullptr) return 0;
  xtable_rm_row(table, row);
  xtable_index_row(table);
  return 1;
}

int32_t xtable_move_up_row(xtable* table, uint32_t index) {
  const xtable_row* const row = xtable_search_row(table, index);
  if (row == nullptr || row->prev == nullptr) return 0;
  move_behind_next(table, row->prev);
  return 1;
}

int32_t xtable_move_dn_row(xtable* table, uint32_t index) {
  xtable_row* const row = xtable_search_row(table, index);
  if (row == nullptr || row->next == nullptr) return 0;
  move_behind_next(table, row);
  return 1;
}

void xtable_cleanup(xtable* table) {
  if (table == nullptr) return;
  xtable_row* row = table->head;
  while (row != nullptr) {
    xtable_row* const next = row->next;
    free(row);
    row = next;
  }
  *table = {};
}
