// The single-line input of an address.
#ifndef TAVIK_FIELDS_ADDRESS_BOX_H
#define TAVIK_FIELDS_ADDRESS_BOX_H

#include <stdarg.h>
#include <stdint.h>

namespace tavik {

// Prints a size attribute: the standard size for 0, none for a negative size.
void print_size(int32_t size, uint32_t standard);

// Prints the input of an IPv4 address, with or without a prefix. length is what the longest text
// takes; a size of 0 is as much. The value goes out as it is.
void print_ipv4_input(const char* name, uint32_t size, uint32_t length, const char* value,
                      uint32_t flags);

// The same with the page's own attributes, and for a negative size no size attribute.
[[gnu::format(printf, 5, 0)]] void vprint_ipv4_input(int32_t size, uint32_t length,
                                                     const char* value, uint32_t flags,
                                                     const char* format, va_list arguments);

}  // namespace tavik

#endif
