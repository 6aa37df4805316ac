#include <string.h>

#include "tavik.h"

namespace {

bool is_allowed(uint32_t character) {
  // Letters and digits by their codes, whatever locale the page has set.
  if (character >= 'a' && character <= 'z') return true;
  if (character >= 'A' && character <= 'Z') return true;
  if (character >= '0' && character <= '9') return true;
  constexpr char kSigns[] = "#+,-./:;@";
  return character < 0x80 && strchr(kSigns, static_cast<int>(character)) != nullptr;
}

}  // namespace

const char* passwd_chars(void) {
  return "a-z A-Z 0-9 . , - + / : ; # @";
}

int32_t chk_new_passwd(const char* text, const char** accepted, uint32_t minimum,
                       uint32_t maximum) {
  const char* cursor = text;
  uint32_t count = 0;
  while (const uint32_t character = utf8_to_ucs2(&cursor, UINT32_MAX)) {
    if (!is_allowed(character)) return PW_STATUS_BAD_CHAR;
    ++count;
  }
  if (count == 0) return PW_STATUS_NONE;
  if (count < minimum || count > maximum) return PW_STATUS_BAD_LENGTH;
  if (accepted != nullptr) *accepted = text;
  return PW_STATUS_ACCEPTED;
}
