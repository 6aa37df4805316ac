// The parts that the controls' tags have in common, up to the attributes of the flag word.
#ifndef TAVIK_FIELDS_OPEN_TAG_H
#define TAVIK_FIELDS_OPEN_TAG_H

#include <stdarg.h>
#include <stdint.h>

namespace tavik {

// The name attribute, as it is; nothing for a null name.
void print_name(const char* name);

// A single-line text input, with the name in front of all its other attributes.
void open_text_input(const char* name = nullptr);

// The maxlength attribute, left out of the fields that do so for PF_READONLY.
void print_maxlength(uint32_t maximum, uint32_t flags);

// The page's own attributes, as they are, where the tag goes on behind the flags; nothing for a
// null format.
[[gnu::format(printf, 1, 0)]] void print_format(const char* format, va_list arguments);

}  // namespace tavik

#endif
