#include <unistd.h>

#include "output/html_print_item.h"
#include "tavik.h"

int32_t gen_text_item(const char* directory, const char* name) {
  return tavik::html_print_item(directory, name, getpagesize() - 1);
}
