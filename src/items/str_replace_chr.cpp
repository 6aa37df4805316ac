#include "tavik.h"

void str_replace_chr(char* text, uint32_t from, uint32_t to) {
  if (text == nullptr) return;
  for (; *text != '\0'; ++text) {
    if (static_cast<unsigned char>(*text) == from) *text = static_cast<char>(to);
  }
}
