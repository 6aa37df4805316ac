#include <unistd.h>

#include "items/heap_text.h"
#include "tavik.h"

int32_t remove_filef(const char* format, ...) {
  va_list arguments;
  va_start(arguments, format);
  const tavik::HeapText path(tavik::format_text(format, arguments));
  va_end(arguments);
  return path.get() == nullptr ? -1 : unlink(path.get());
}
