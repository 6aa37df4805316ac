#include <fcntl.h>
#include <stdarg.h>

#include "items/unique_fd.h"
#include "tavik.h"

void print_head_css(const char* path, ...) {
  va_list paths;
  va_start(paths, path);
  bool is_open = false;
  for (; path != nullptr; path = va_arg(paths, const char*)) {
    const tavik::UniqueFd file(open(path, O_RDONLY));
    if (!file.is_open()) continue;
    if (!is_open) print_str("<style>\r\n");
    is_open = true;
    print_fd(file.get());
  }
  va_end(paths);
  if (is_open) print_str("</style>\r\n");
}
