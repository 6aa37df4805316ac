#include "fields/address_box.h"

#include <stdio.h>

#include "fields/open_tag.h"
#include "output/close_tag.h"

namespace tavik {

void print_size(int32_t size, uint32_t standard) {
  if (size >= 0) printf(" size=\"%u\"", size == 0 ? standard : static_cast<uint32_t>(size));
}

void print_ipv4_input(const char* name, uint32_t size, uint32_t length, const char* value,
                      uint32_t flags) {
  open_text_input(name);
  printf(" size=\"%u\" maxlength=\"%u\" value=\"%s\"", size == 0 ? length : size, length, value);
  close_tag(flags);
}

void vprint_ipv4_input(int32_t size, uint32_t length, const char* value, uint32_t flags,
                       const char* format, va_list arguments) {
  open_text_input();
  print_size(size, length);
  printf(" maxlength=\"%u\" value=\"%s\"", length, value);
  close_tag(flags, format, arguments);
}

}  // namespace tavik
