#include <stdlib.h>
#include <string.h>

#include "auth/file_list.h"
#include "fields/open_tag.h"
#include "items/heap_text.h"
#include "items/stack_buffer.h"
#include "output/close_tag.h"
#include "tavik.h"

namespace {

void print_option(const char* value, const char* label, bool is_selected) {
  print_str("<option value=\"");
  print_str(value);
  print_str("\"");
  tavik::close_tag(is_selected ? PF_SELECTED : 0);
  html_print_text(label);
  print_str("</option>\r\n");
}

// Whether an option was printed, and as the selected one.
bool print_file(const char* name, const char* selected) {
  const auto length = static_cast<int32_t>(strlen(name));
  const int32_t size = (length + 2) / 3 * 4 + 1;
  const tavik::HeapText value(static_cast<char*>(malloc(static_cast<size_t>(size))));
  if (base64_encode(value.get(), size, name, length) < 0) return false;
  const bool is_selected = strcmp(name, selected) == 0;
  print_option(value.get(), name, is_selected);
  return is_selected;
}

}  // namespace

void gen_selectbox_certs(const char* directory, const char* name, const char* selected,
                         const char* none_label, uint32_t flags, const char* attributes) {
  struct dirent** files = nullptr;
  const int32_t count = tavik::list_files(directory, &files);
  print_str("<select");
  tavik::print_name(name);
  print_flags(count < 0 ? flags | PF_DISABLED : flags);
  print_str(attributes);
  print_str(">\r\n");
  bool has_selected = false;
  for (int32_t i = 0; i < count; ++i) {
    if (print_file(files[i]->d_name, selected)) has_selected = true;
  }
  if (!has_selected || (flags & PF_KEEP_NONE_OPTION) != 0) {
    print_option("", none_label, !has_selected);
  }
  print_str("</select>");
  tavik::free_files(files, count);
}

uint32_t gen_selectbox_certs_item(const char* directory, const char* item, const char* name,
                                  const char* certificates, const char* none_label, int32_t size,
                                  const char* attributes) {
  if (size < 0) size = 0;
  char* const selected = TAVIK_STACK_BUFFER(static_cast<size_t>(size) + 1);
  uint32_t flags = PF_KEEP_NONE_OPTION;
  if (read_item(directory, item, selected, size) < 0) {
    flags |= PF_DISABLED;
    // A read that fails half-way leaves bytes behind.
    selected[0] = '\0';
  }
  gen_selectbox_certs(certificates, name, selected, none_label, flags, attributes);
  return flags;
}
