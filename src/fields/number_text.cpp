#include "fields/number_text.h"

#include "tavik.h"

namespace tavik {

bool take_number(const char** cursor, uint32_t* number) {
  *cursor = skip_blanks(*cursor);
  if (!is_digit(**cursor)) return false;
  *number = str_to_uint(*cursor);
  while (is_digit(**cursor)) ++*cursor;
  return true;
}

}  // namespace tavik
