#include "tavik.h"

static_assert(sizeof(void*) != 4 || sizeof(devinfo_row) == 32);

const devinfo_row* get_devinfo(const devinfo_row* table, const char* text) {
  if (text == nullptr || *text == '\0') return table;
  const auto key = static_cast<unsigned char>(*text);
  for (const devinfo_row* row = table; row->code != 0; ++row) {
    if (row->code >= key) return row;
  }
  return table;
}
