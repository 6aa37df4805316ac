#include "shared/text_filters.h"

int32_t text_filter_line(uint32_t position, uint32_t character) {
  (void)position;
  int32_t surrogate = character >= 0xD800 && character <= 0xDFFF;
  return character >= 0x20 && character != 0x7F && character < 0xFFFE && !surrogate;
}

int32_t text_filter_lines(uint32_t position, uint32_t character) {
  return character == '\n' || text_filter_line(position, character);
}
