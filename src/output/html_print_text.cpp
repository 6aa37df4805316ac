#include "output/html_encode.h"
#include "tavik.h"

namespace {

// Prints bytes that are their own escapes. One that cannot be written is lost, not those behind it.
uint32_t print_plain(const char* text, uint32_t length) {
  uint32_t written = print_mem(text, length);
  for (uint32_t passed = written; passed < length;) {
    ++passed;
    const uint32_t more = print_mem(text + passed, length - passed);
    written += more;
    passed += more;
  }
  return written;
}

}  // namespace

uint32_t html_print_ucs2(uint32_t character) {
  char escape[tavik::kLongestEscape];
  return print_mem(escape, tavik::html_encode_ucs2(escape, character));
}

uint32_t html_print_text(const char* text) {
  if (text == nullptr) return 0;
  uint32_t written = 0;
  while (*text != '\0') {
    const uint32_t run = tavik::plain_run(text, UINT32_MAX);
    written += print_plain(text, run);
    text += run;
    if (*text != '\0') written += html_print_ucs2(utf8_to_ucs2(&text, UINT32_MAX));
  }
  return written;
}

uint32_t html_print_text_limit(uint32_t characters, const char* text, uint32_t bytes) {
  if (text == nullptr) return 0;
  uint32_t written = 0;
  while (characters > 0 && bytes > 0 && *text != '\0') {
    const uint32_t run = tavik::plain_run(text, characters < bytes ? characters : bytes);
    written += print_plain(text, run);
    characters -= run;
    bytes -= run;
    text += run;
    if (characters == 0) break;
    const char* const start = text;
    const uint32_t character = utf8_to_ucs2(&text, bytes);
    if (character == 0) break;
    written += html_print_ucs2(character);
    bytes -= static_cast<uint32_t>(text - start);
    --characters;
  }
  return written;
}
