#include <stdio.h>

#include "fields/most_options.h"
#include "items/heap_text.h"
#include "tavik.h"

namespace {

static_assert(sizeof(void*) != 4 || sizeof(select_state) == 8);

struct NumContext {
  selectbox_callback callback;
  const char* attributes;
  select_state state;
};

int32_t selectbox_num_class(void* context, uint32_t operation, uint32_t index, uintptr_t arg) {
  const auto* const select = static_cast<const NumContext*>(context);
  if (operation == SELECT_OP_VALUE) {
    return selectbox_num_show_value(index, select->state.value.index);
  }
  if (operation == SELECT_OP_ATTRS && select->attributes != nullptr) {
    print_str(select->attributes);
    return 1;
  }
  return select->callback(operation, index, arg);
}

}  // namespace

int32_t selectbox_num_show_value(uint32_t value, uint32_t current) {
  printf("%u", value);
  return value == current ? 1 : 0;
}

uint32_t gen_selectbox_num(const select_state* state, const char* name, selectbox_callback callback,
                           uintptr_t arg, const char* attributes) {
  NumContext context = {callback, attributes, {PF_DISABLED, {0}}};
  if (state != nullptr) context.state = *state;
  const uint32_t flags = context.state.flags;
  gen_selectbox_class(&context, name, selectbox_num_class, arg, tavik::kMostOptions, flags);
  return flags;
}

uint32_t gen_xselectbox_num(const select_state* state, selectbox_callback callback, uintptr_t arg,
                            const char* format, ...) {
  va_list arguments;
  va_start(arguments, format);
  const tavik::HeapText attributes(tavik::format_text(format, arguments));
  va_end(arguments);
  return gen_selectbox_num(state, nullptr, callback, arg, attributes.get());
}
