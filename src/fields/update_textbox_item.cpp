#include "fields/byte_size.h"
#include "fields/clean_text.h"
#include "items/stack_buffer.h"
#include "tavik.h"

int32_t update_textbox(const char* directory, const char* name, const char* text,
                       uint32_t maximum) {
  return update_item(directory, name, text, tavik::byte_size(maximum));
}

int32_t update_textbox_item(const char* directory, const char* name, const char* text,
                            uint32_t maximum, textbox_filter filter) {
  if (text == nullptr) return -1;
  const uint32_t size = tavik::clean_size(text, maximum);
  char* const value = TAVIK_STACK_BUFFER(size + 1);
  tavik::CleanText clean(value, size, filter);
  while (*text != '\0' && clean.characters() < maximum) {
    const uint32_t character = utf8_to_ucs2(&text, UINT32_MAX);
    if (character != 0) clean.add(character);
  }
  clean.terminate();
  return update_textbox(directory, name, value, maximum);
}
