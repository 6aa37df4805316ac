#include <stdlib.h>
#include <string.h>

#include "data/chain.h"
#include "items/control_char.h"
#include "tavik.h"

static_assert(sizeof(void*) != 4 || offsetof(db_row, columns) == 8);

namespace {

// The list that is being read; it serves no purpose between calls.
tavik::Chain<db_row> rows;

db_row* append_row(uint32_t columns) {
  const uint64_t size = sizeof(db_row) + uint64_t{columns} * sizeof(char*);
  if (size > INT32_MAX) return nullptr;
  auto* const row = static_cast<db_row*>(calloc(1, static_cast<size_t>(size)));
  if (row != nullptr) rows.append(row);
  return row;
}

int32_t take_line(uintptr_t context, char* line) {
  const auto columns = static_cast<uint32_t>(context);
  db_row* row = rows.tail;
  if (tavik::is_control(*line)) {
    if (row != nullptr) append_row(columns);
    return 0;
  }
  if (*line == '#') return 0;
  if (row == nullptr) row = append_row(columns);
  if (row == nullptr || row->used >= columns) return 0;
  size_t length = 1;
  while (!tavik::is_control(line[length])) ++length;
  // Without memory the slot stays null and counts, so that the next line keeps its column.
  row->columns[row->used++] = strndup(line, length);
  return 0;
}

}  // namespace

int32_t read_db_file(const char* path, uint32_t columns, db_row** list) {
  if (list == nullptr) return 0;
  rows = {};
  const int32_t result = rd_file_line(path, take_line, columns);
  *list = rows.head;
  return result;
}

int32_t free_db(db_row* list) {
  while (list != nullptr) {
    db_row* const row = list;
    list = row->next;
    for (uint32_t column = 0; column < row->used; ++column) free(row->columns[column]);
    free(row);
  }
  return 0;
}

db_row* search_db(db_row* list, uint32_t column, const char* text) {
  if (text == nullptr) return nullptr;
  for (db_row* row = list; row != nullptr; row = row->next) {
    const char* const value = column < row->used ? row->columns[column] : nullptr;
    if (value != nullptr && strcmp(value, text) == 0) return row;
  }
  return nullptr;
}
