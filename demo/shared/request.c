#include "shared/request.h"

#include <stdlib.h>
#include <string.h>

int32_t request_is_post(void) {
  const char* method = getenv("REQUEST_METHOD");
  return method != NULL && strcmp(method, "POST") == 0;
}

const char* request_value(const cgi_attr* attrs, int32_t count, const char* name) {
  for (int32_t i = count - 1; i >= 0; i--) {
    if (strcmp(attrs[i].name, name) == 0) return attrs[i].value;
  }
  return NULL;
}
