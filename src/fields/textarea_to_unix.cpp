#include "tavik.h"

void textarea_to_unix(char* destination, const char* source) {
  if (destination == nullptr || source == nullptr) return;
  for (; *source != '\0'; ++source) {
    if (*source != '\r') *destination++ = *source;
  }
  *destination = '\0';
}
