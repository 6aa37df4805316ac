// A file of rows, beside the same rules over all lines at once.
#include "harness.h"

namespace {

using Row = std::vector<std::string>;

std::vector<Row> rows_of(const std::string& bytes, uint32_t columns) {
  std::vector<Row> rows;
  for (const std::string& line : fuzz::lines_of(bytes)) {
    const std::string value = fuzz::value_of(line);
    if (value.empty()) {
      if (!rows.empty()) rows.emplace_back();
      continue;
    }
    if (value[0] == '#') continue;
    if (rows.empty()) rows.emplace_back();
    if (rows.back().size() < columns) rows.back().push_back(value);
  }
  return rows;
}

}  // namespace

int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  fuzz::Input input(data, size);
  const uint32_t columns = input.byte() % 5;
  const std::string bytes = input.rest();
  db_row* list = nullptr;
  EXPECT(read_db_file(fuzz::File(bytes).path().c_str(), columns, &list) == 0);
  const std::vector<Row> rows = rows_of(bytes, columns);
  const db_row* row = list;
  for (const Row& expected : rows) {
    EXPECT(row != nullptr && row->used == expected.size());
    for (uint32_t i = 0; i < row->used; ++i) EXPECT(expected[i] == row->columns[i]);
    if (row->used > 0) EXPECT(search_db(list, 0, row->columns[0])->columns[0] == expected[0]);
    row = row->next;
  }
  EXPECT(row == nullptr);
  const std::string selected = rows.empty() || rows[0].empty() ? "" : rows[0][0];
  fuzz::printed([&] { gen_selectbox_dbase(list, 0, 1, "name", selected.c_str(), 0); });
  free_db(list);
  return 0;
}
