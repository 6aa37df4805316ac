#include "tavik.h"

uint32_t rd_textbox_item(const char* directory, const char* name, char* buffer, int32_t size,
                         uint32_t maximum, uint32_t flags) {
  if (buffer == nullptr) return flags | PF_DISABLED;
  if (read_item(directory, name, buffer, size) < 0) {
    // A read that failed on its way leaves what had arrived.
    buffer[0] = '\0';
    flags |= PF_DISABLED;
  }
  uint32_t length = 0;
  utf8_length(buffer, maximum, &length);
  buffer[length] = '\0';
  return flags;
}
