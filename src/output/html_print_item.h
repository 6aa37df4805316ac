// An item as text of the page.
#ifndef TAVIK_OUTPUT_HTML_PRINT_ITEM_H
#define TAVIK_OUTPUT_HTML_PRINT_ITEM_H

#include <stdint.h>

namespace tavik {

// Prints at most count bytes of an item's value, escaped; nothing if it cannot be read. Gives what
// read_item() answered.
int32_t html_print_item(const char* directory, const char* name, int32_t count);

}  // namespace tavik

#endif
