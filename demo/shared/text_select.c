#include "shared/text_select.h"

#include "shared/page.h"

enum { VALUE_SIZE = 64 };

void text_select_print(const char* name, selectbox_text_row row, uintptr_t arg,
                       const char* fallback) {
  select_state state = {0, {0}};
  char attributes[VALUE_SIZE];
  snprintf(attributes, sizeof attributes, " id=\"%s\"", name);
  rd_selectbox_text_item(page_state(), name, &state, row, arg, fallback);
  gen_selectbox_text(&state, name, row, NULL, arg, attributes);
}

int32_t text_select_store(const char* name, const char* text, selectbox_text_row row, uintptr_t arg,
                          const char* fallback) {
  select_state state = {0, {0}};
  rd_selectbox_text_item(page_state(), name, &state, row, arg, fallback);
  scan_select_text(text, &state, row, arg);
  return update_item(page_state(), name, state.value.text, VALUE_SIZE);
}
