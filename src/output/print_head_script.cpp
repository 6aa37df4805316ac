#include <fcntl.h>

#include "items/unique_fd.h"
#include "tavik.h"

void print_head_script(uint32_t flags, const char* path) {
  const bool from_file = (flags & SCRIPT_FILE) != 0;
  const tavik::UniqueFd file(from_file && path != nullptr ? open(path, O_RDONLY) : -1);
  const bool has_content = from_file ? file.is_open() : path != nullptr;
  constexpr uint32_t kBothTags = SCRIPT_OPEN | SCRIPT_CLOSE;
  if (!has_content && (flags & kBothTags) == kBothTags) return;
  if ((flags & SCRIPT_OPEN) != 0) print_str("<script>\r\n");
  if (from_file && has_content) print_fd(file.get());
  if (!from_file) print_str(path);
  if ((flags & SCRIPT_CLOSE) != 0) print_str("</script>\r\n");
}
