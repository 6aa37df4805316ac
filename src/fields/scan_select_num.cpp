#include "fields/number_text.h"
#include "tavik.h"

int32_t scan_select_num(const char* text, uint32_t* current, uint32_t count,
                        uint32_t default_value) {
  if (text == nullptr || current == nullptr) return 0;
  uint32_t index = default_value;
  tavik::take_number(&text, &index);
  if (index >= count) index = count == 0 ? 0 : count - 1;
  return tavik::store_change(current, index);
}
