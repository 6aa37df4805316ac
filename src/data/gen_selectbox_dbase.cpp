#include <string.h>

#include "fields/open_tag.h"
#include "items/stack_buffer.h"
#include "output/close_tag.h"
#include "tavik.h"

namespace {

void print_option(const char* value, const char* label, const char* selected) {
  html_printf(1, "<option value=\"%s\"", value);
  tavik::close_tag(strcmp(value, selected) == 0 ? PF_SELECTED : 0);
  html_print_text(label);
  print_str("</option>\r\n");
}

}  // namespace

void gen_selectbox_dbase(const db_row* list, uint32_t value_column, uint32_t label_column,
                         const char* name, const char* selected, uint32_t flags) {
  print_str("<select");
  tavik::print_name(name);
  tavik::close_tag(flags);
  print_str("\r\n");
  for (const db_row* row = list; row != nullptr; row = row->next) {
    if (value_column >= row->used || label_column >= row->used) continue;
    const char* const value = row->columns[value_column];
    const char* const label = row->columns[label_column];
    if (value != nullptr && label != nullptr) print_option(value, label, selected);
  }
  print_str("</select>");
}

void gen_selectbox_dbase_item(const db_row* list, uint32_t value_column, uint32_t label_column,
                              const char* directory, const char* item, const char* name,
                              int32_t size) {
  const int32_t count = size < 0 ? 0 : size;
  char* const stored = TAVIK_STACK_BUFFER(static_cast<size_t>(count) + 1);
  const int32_t length = read_item(directory, item, stored, count);
  // A read that failed half-way leaves the buffer without an end.
  if (length < 0) stored[0] = '\0';
  gen_selectbox_dbase(list, value_column, label_column, name, stored, length > 0 ? 0 : PF_DISABLED);
}
