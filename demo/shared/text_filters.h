/* Filters for texts that people write, and that any document can hold. */
#ifndef DEMO_TEXT_FILTERS_H
#define DEMO_TEXT_FILTERS_H

#include <stdint.h>

/* All characters but control characters and those that XML does not know. */
int32_t text_filter_line(uint32_t position, uint32_t character);

/* These and line feeds. */
int32_t text_filter_lines(uint32_t position, uint32_t character);

#endif
