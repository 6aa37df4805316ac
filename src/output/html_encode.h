// The escape rules for text in HTML.
#ifndef TAVIK_OUTPUT_HTML_ENCODE_H
#define TAVIK_OUTPUT_HTML_ENCODE_H

#include <stdint.h>

namespace tavik {

// The bytes of the longest escape, such as "&brvbar;" or "&#65535;".
constexpr uint32_t kLongestEscape = 8;

// Writes a character's escape, without a terminator, and gives its length; 0 for the character 0.
// Only the low 16 bits of the character count. out has room for kLongestEscape bytes.
uint32_t html_encode_ucs2(char* out, uint32_t character);

// How many bytes at the start of a text, at most limit, are printed as they are: most of any page.
uint32_t plain_run(const char* text, uint32_t limit);

}  // namespace tavik

#endif
