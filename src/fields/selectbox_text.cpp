#include <string.h>

#include "fields/most_options.h"
#include "items/stack_buffer.h"
#include "tavik.h"

namespace {

static_assert(sizeof(selectbox_text_option) == 2 * sizeof(void*));

struct TextContext {
  selectbox_text_row row;
  selectbox_callback callback;
  const char* attributes;
  select_state state;
};

bool same_text(const char* text, const char* value) {
  return text != nullptr && strcmp(text, value) == 0;
}

int32_t print_value(const char* value, const char* current) {
  if (value == nullptr) return -1;
  html_print_text(value);
  return same_text(current, value) ? 1 : 0;
}

int32_t selectbox_text_class(void* context, uint32_t operation, uint32_t index, uintptr_t arg) {
  const auto* const select = static_cast<const TextContext*>(context);
  selectbox_text_option option = {nullptr, nullptr};
  const int32_t exists = select->row(index, arg, &option);
  if (operation == SELECT_OP_VALUE) return print_value(option.value, select->state.value.text);
  if (operation == SELECT_OP_ATTRS && select->attributes != nullptr) {
    print_str(select->attributes);
    return 1;
  }
  if (select->callback != nullptr) return select->callback(operation, index, arg);
  if (operation == SELECT_OP_ATTRS) return 1;
  if (operation == SELECT_OP_LABEL) html_print_text(option.label);
  return exists;
}

// Calls see(value) for the value of each row that has one, in order, until it gives true.
template <typename See>
void walk_values(selectbox_text_row row, uintptr_t arg, See see) {
  for (uint32_t index = 0; index < tavik::kMostOptions; ++index) {
    selectbox_text_option option = {nullptr, nullptr};
    const int32_t exists = row(index, arg, &option);
    if (exists < 0) return;
    if (exists > 0 && option.value != nullptr && see(option.value)) return;
  }
}

// The first row's value that equals the text, in the row's own storage, or null.
const char* selectbox_text_find(const char* text, selectbox_text_row row, uintptr_t arg) {
  const char* found = nullptr;
  walk_values(row, arg, [&](const char* value) {
    if (strcmp(value, text) == 0) found = value;
    return found != nullptr;
  });
  return found;
}

int32_t longest_value(selectbox_text_row row, uintptr_t arg) {
  size_t longest = 0;
  walk_values(row, arg, [&](const char* value) {
    const size_t length = strnlen(value, INT32_MAX);
    if (length > longest) longest = length;
    return false;
  });
  return static_cast<int32_t>(longest);
}

}  // namespace

uint32_t gen_selectbox_text(const select_state* state, const char* name, selectbox_text_row row,
                            selectbox_callback callback, uintptr_t arg, const char* attributes) {
  if (state == nullptr || row == nullptr) return PF_DISABLED;
  TextContext context = {row, callback, attributes, *state};
  gen_selectbox_class(&context, name, selectbox_text_class, arg, tavik::kMostOptions,
                      context.state.flags);
  return context.state.flags;
}

int32_t scan_select_text(const char* text, select_state* state, selectbox_text_row row,
                         uintptr_t arg) {
  if (text == nullptr || state == nullptr || row == nullptr) return 0;
  const char* const value = selectbox_text_find(text, row, arg);
  if (value == nullptr || same_text(state->value.text, value)) return 0;
  state->value.text = value;
  return 1;
}

void rd_selectbox_text_item(const char* directory, const char* name, select_state* state,
                            selectbox_text_row row, uintptr_t arg, const char* default_value) {
  if (state == nullptr || row == nullptr) return;
  const int32_t size = longest_value(row, arg);
  char* const buffer = TAVIK_STACK_BUFFER(static_cast<size_t>(size) + 1);
  const int32_t length = read_item(directory, name, buffer, size);
  state->flags = length > 0 ? 0 : PF_DISABLED;
  // A read that fails half-way leaves bytes behind.
  if (length <= 0) buffer[0] = '\0';
  const char* const value = selectbox_text_find(buffer, row, arg);
  state->value.text = value != nullptr ? value : default_value;
}
