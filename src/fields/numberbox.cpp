#include "fields/open_tag.h"
#include "output/close_tag.h"
#include "tavik.h"

namespace {

constexpr uint32_t kItemLength = 15;

}  // namespace

int32_t gen_numberbox(const char* field_name, uint32_t size, uint32_t maxlength, uint32_t value,
                      uint32_t flags) {
  tavik::open_text_input(field_name);
  printf(" size=\"%u\" maxlength=\"%u\" value=\"%u\"", size, maxlength, value);
  return tavik::close_tag(flags);
}

int32_t gen_xnumberbox(uint32_t maxlength, uint32_t value, uint32_t flags, const char* format,
                       ...) {
  tavik::open_text_input();
  tavik::print_maxlength(maxlength, flags);
  printf(" value=\"%u\"", value);
  va_list arguments;
  va_start(arguments, format);
  const int32_t result = tavik::close_tag(flags, format, arguments);
  va_end(arguments);
  return result;
}

uint32_t rd_numberbox_item(const char* directory, const char* name, uint32_t* value,
                           uint32_t default_value) {
  uint32_t number = default_value;
  const int32_t length = read_item_uint(directory, name, &number);
  if (value != nullptr) *value = number;
  return length < 0 ? PF_DISABLED : 0;
}

int32_t wr_numberbox_item(const char* directory, const char* name, uint32_t value) {
  return update_item_uint(directory, name, value);
}

uint32_t gen_numberbox_item(const char* directory, const char* name, const char* field_name,
                            uint32_t size, uint32_t default_value, uint32_t flags) {
  uint32_t value = 0;
  flags |= rd_numberbox_item(directory, name, &value, default_value);
  gen_numberbox(field_name, size, kItemLength, value, flags);
  return flags;
}

uint32_t gen_json_number_item(const char* directory, const char* name, const char* json_name,
                              uint32_t default_value, uint32_t flags) {
  if (json_name == nullptr) return flags;
  print_json_flags(flags);
  uint32_t value = 0;
  const uint32_t failed = rd_numberbox_item(directory, name, &value, default_value);
  // A page's own PF_DISABLED is about controls; only a failed read makes the number null.
  if (failed != 0) {
    printf("\"%s\": null", json_name);
  } else {
    printf("\"%s\": %u", json_name, value);
  }
  return flags | failed | PF_JSON_MORE;
}
