#include <string.h>

#include "fields/open_tag.h"
#include "output/close_tag.h"
#include "tavik.h"

namespace {

void open_radio(const char* name) {
  print_str("<input type=\"radio\"");
  tavik::print_name(name);
}

// PF_CHECKED is only ever added, so that the page can turn a button on by itself.
int32_t close_radio(const char* attributes, uint32_t flags, bool is_current) {
  print_str(attributes);
  return tavik::close_tag(is_current ? flags | PF_CHECKED : flags);
}

}  // namespace

int32_t gen_radio(const char* name, uint32_t value, uint32_t current, const char* attributes,
                  uint32_t flags) {
  open_radio(name);
  printf(" value=\"%u\"", value);
  return close_radio(attributes, flags, value == current);
}

int32_t gen_radio_string(const char* name, const char* value, const char* current,
                         const char* attributes, uint32_t flags) {
  open_radio(name);
  if (value != nullptr) printf(" value=\"%s\"", value);
  const bool is_current = value != nullptr && current != nullptr && strcmp(value, current) == 0;
  return close_radio(attributes, flags, is_current);
}
