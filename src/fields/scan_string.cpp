#include <string.h>
#include <strings.h>

#include "fields/number_text.h"
#include "tavik.h"

int32_t scan_string(const char* text, const char* word) {
  if (text == nullptr || word == nullptr) return 0;
  return strncasecmp(tavik::skip_blanks(text), word, strlen(word)) == 0 ? 1 : 0;
}
