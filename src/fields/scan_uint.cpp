#include "fields/number_text.h"
#include "tavik.h"

const char* scan_uint(const char* text, uint32_t* number) {
  uint32_t value = 0;
  if (text == nullptr || !tavik::take_number(&text, &value)) return nullptr;
  if (number != nullptr) *number = value;
  return *text == ',' ? text + 1 : nullptr;
}

const char* scan_list_uint(const char* text, uint32_t* count, uint32_t* array, uint32_t capacity) {
  if (text == nullptr || count == nullptr || array == nullptr) return text;
  text = tavik::skip_blanks(text);
  if (*text++ != '(') return nullptr;
  while (*text != '\0') {
    if (*text == ')') return text[1] == ',' ? text + 2 : nullptr;
    uint32_t value = 0;
    if (!tavik::take_number(&text, &value)) return nullptr;
    if (capacity > 0) {
      array[(*count)++] = value;
      --capacity;
    }
    if (*text == ',') ++text;
  }
  return text;
}
