#include "shared/form_value.h"

#include <string.h>

const char* form_value(const cgi_attr* attrs, int32_t count, const char* name) {
  for (int32_t i = count - 1; i >= 0; i--) {
    if (strcmp(attrs[i].name, name) == 0) return attrs[i].value;
  }
  return NULL;
}
