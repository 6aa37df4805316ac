#include "output/close_tag.h"
#include "tavik.h"

uint32_t checkbox_flags(uint32_t checked, uint32_t disabled) {
  return (checked != 0 ? PF_CHECKED : 0) | (disabled != 0 ? PF_DISABLED : 0);
}

int32_t gen_xcheckbox(uint32_t flags, const char* format, ...) {
  print_str("<input type=\"checkbox\"");
  va_list arguments;
  va_start(arguments, format);
  const int32_t result = tavik::close_tag(flags, format, arguments);
  va_end(arguments);
  return result;
}

uint32_t rd_checkbox_item(const char* directory, const char* name, uint32_t flags) {
  uint32_t value = 0;
  if (read_item_uint(directory, name, &value) < 0) return flags | PF_DISABLED;
  return value != 0 ? flags | PF_CHECKED : flags & ~PF_CHECKED;
}

int32_t wr_checkbox_item(const char* directory, const char* name, uint32_t flags) {
  return update_item(directory, name, (flags & PF_CHECKED) != 0 ? "1" : "0", 2);
}
