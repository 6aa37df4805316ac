#include "fields/open_tag.h"
#include "output/close_tag.h"
#include "tavik.h"

namespace {

void print_option(void* context, selectbox_class options, uintptr_t arg, uint32_t index) {
  print_str("<option value=\"");
  const bool selected = options(context, SELECT_OP_VALUE, index, arg) != 0;
  print_str("\"");
  tavik::close_tag(selected ? PF_SELECTED : 0);
  options(context, SELECT_OP_LABEL, index, arg);
  print_str("</option>\r\n");
}

}  // namespace

void gen_selectbox_class(void* context, const char* name, selectbox_class options, uintptr_t arg,
                         uint32_t count, uint32_t flags) {
  print_str("<select");
  tavik::print_name(name);
  if (options == nullptr) {
    count = 0;
  } else {
    options(context, SELECT_OP_ATTRS, 0, arg);
  }
  tavik::close_tag(flags);
  print_str("\r\n");
  for (uint32_t index = 0; index < count; ++index) {
    const int32_t shown = options(context, SELECT_OP_SHOW, index, arg);
    if (shown < 0) break;
    if (shown > 0) print_option(context, options, arg, index);
  }
  print_str("</select>\r\n");
}
