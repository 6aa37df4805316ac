#include <stdlib.h>
#include <string.h>

#include "tavik.h"

uint32_t get_auth(const auth_pair* table) {
  const char* const user = getenv("REMOTE_USER");
  if (table == nullptr || user == nullptr) return 0;
  for (; table->name != nullptr; ++table) {
    if (strcmp(table->name, user) == 0) return table->value;
  }
  return 0;
}
