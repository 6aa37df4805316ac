// The limit of the select boxes whose options come from a function of the page.
#ifndef TAVIK_FIELDS_MOST_OPTIONS_H
#define TAVIK_FIELDS_MOST_OPTIONS_H

#include <stdint.h>

namespace tavik {

// So many indexes are looked at where that function never ends the list itself.
constexpr uint32_t kMostOptions = 256;

}  // namespace tavik

#endif
