#include "fields/number_text.h"
#include "tavik.h"

int32_t scan_range(const char* text, uint32_t* first, uint32_t* last, uint32_t minimum,
                   uint32_t maximum, uint32_t default_value) {
  if (text == nullptr || first == nullptr || last == nullptr) return 0;
  uint32_t low = default_value;
  uint32_t high = default_value;
  const bool has_low = tavik::take_number(&text, &low);
  if (has_low) {
    low = tavik::limit_number(low, minimum, maximum);
    text = tavik::skip_blanks(text);
  }
  bool has_high = false;
  if (*text == '-' || *text == ':') {
    ++text;
    has_high = tavik::take_number(&text, &high);
    if (has_high) high = tavik::limit_number(high, minimum, maximum);
  }
  // One number is both bounds; a lone second one leaves both at the default.
  if (has_low != has_high) high = low;
  if (has_low && has_high && high < low) {
    const uint32_t swapped = low;
    low = high;
    high = swapped;
  }
  if (*first == low && *last == high) return 0;
  *first = low;
  *last = high;
  return 1;
}
