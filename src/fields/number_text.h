// Numbers inside submitted text. A blank is 0x20 alone, digits run to the first byte that is none,
// whatever follows it, and values wrap at 32 bits.
#ifndef TAVIK_FIELDS_NUMBER_TEXT_H
#define TAVIK_FIELDS_NUMBER_TEXT_H

#include <stdint.h>

namespace tavik {

inline bool is_digit(char c) {
  return c >= '0' && c <= '9';
}

inline const char* skip_blanks(const char* text) {
  while (*text == ' ') ++text;
  return text;
}

// Takes blanks and a number off a text. Without a digit behind the blanks it is false, with the
// number untouched; the cursor is then behind the blanks.
bool take_number(const char** cursor, uint32_t* number);

// Brings a number into a range. Where the bounds cross, one below the minimum gets the minimum and
// any other the maximum.
inline uint32_t limit_number(uint32_t number, uint32_t minimum, uint32_t maximum) {
  if (number < minimum) return minimum;
  return number >= maximum ? maximum : number;
}

// 1 if the held value differed and got the new one, else 0.
inline int32_t store_change(uint32_t* held, uint32_t value) {
  if (*held == value) return 0;
  *held = value;
  return 1;
}

}  // namespace tavik

#endif
