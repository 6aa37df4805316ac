// The end of a control's tag. What a control's function answers is whether this could be written.
#ifndef TAVIK_OUTPUT_CLOSE_TAG_H
#define TAVIK_OUTPUT_CLOSE_TAG_H

#include <stdarg.h>
#include <stdint.h>

namespace tavik {

// Prints the attributes of the flag word and ">". Gives that character, or EOF if it failed.
int32_t close_tag(uint32_t flags = 0);

// Prints the page's own attributes as they are, nothing for a null format, ahead of all that.
[[gnu::format(printf, 2, 0)]] int32_t close_tag(uint32_t flags, const char* format,
                                                va_list arguments);

}  // namespace tavik

#endif
