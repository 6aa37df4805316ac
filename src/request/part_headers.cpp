#include "request/part_headers.h"

#include <stdlib.h>
#include <string.h>
#include <strings.h>

#include "items/heap_text.h"
#include "request/fatal.h"
#include "request/skip_space.h"

namespace tavik {

namespace {

constexpr char kPrefix[] = "Content-";
constexpr size_t kPrefixLength = sizeof kPrefix - 1;

// Ends the text at the first such mark. The result is what follows it, null if there is none.
char* cut(char* text, char mark) {
  char* const found = strchr(text, mark);
  if (found == nullptr) return nullptr;
  *found = '\0';
  return found + 1;
}

}  // namespace

PartHeaders::~PartHeaders() {
  while (held_ > 0) free(lines_[--held_]);
}

void PartHeaders::read(int32_t fd) {
  while (held_ < kLines) {
    HeapText line(static_cast<char*>(malloc(kLineSize)));
    if (line.get() == nullptr) fatal("cgidecode(): Couldn't malloc for multipart.\r");
    const int32_t length = full_line_read_fd(fd, line.get(), kLineSize);
    if (length < 0) fatal("cgidecode(): Couldn't read multipart line from STDIN.\r");
    if (length == 0) return;
    if (add_header(line.get())) lines_[held_++] = line.release();
  }
}

// False if the line makes no record.
bool PartHeaders::add_header(char* line) {
  if (count_ == kRecords || strncasecmp(line, kPrefix, kPrefixLength) != 0) return false;
  char* value = cut(line + kPrefixLength, ':');
  if (value == nullptr) return false;
  value = skip_space(value);
  char* rest = cut(value, ';');
  cgi_attr* const header = &records_[count_++];
  *header = {nullptr, line, value};
  while (rest != nullptr && count_ < kRecords) rest = add_attribute(header, rest);
  return true;
}

// Takes one attribute, whose value must stand in double quotes. The result is the text behind the
// ";" that follows it directly, null if there is none.
char* PartHeaders::add_attribute(cgi_attr* header, char* text) {
  char* const name = skip_space(text);
  char* value = cut(name, '=');
  if (value == nullptr || *value != '"') return nullptr;
  ++value;
  char* const rest = cut(value, '"');
  if (rest == nullptr) return nullptr;
  records_[count_++] = {header, name, value};
  return *rest == ';' ? rest + 1 : nullptr;
}

}  // namespace tavik
