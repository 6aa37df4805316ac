#include "fields/number_text.h"
#include "tavik.h"

int32_t scan_number(const char* text, uint32_t* current, uint32_t minimum, uint32_t maximum,
                    uint32_t default_value) {
  if (text == nullptr || current == nullptr) return 0;
  uint32_t value = 0;
  // The default may lie outside the range: it can stand for "not set".
  if (!tavik::take_number(&text, &value)) return tavik::store_change(current, default_value);
  return tavik::store_change(current, tavik::limit_number(value, minimum, maximum));
}
