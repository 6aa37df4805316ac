#include <string.h>

#include "fields/clean_text.h"
#include "tavik.h"

using tavik::CleanText;

int32_t scan_textbox(const char* source, uint32_t maximum, uint32_t minimum, char* destination,
                     uint32_t size, textbox_filter filter) {
  if (destination == nullptr || size == 0) return -1;
  // In its own place a text cannot outgrow its end: two bytes of lenient UTF-8 can become three.
  if (destination == source) size = static_cast<uint32_t>(strnlen(source, size));
  CleanText clean(destination, size, filter);
  while (source != nullptr && *source != '\0' && clean.characters() < maximum) {
    const uint32_t character = utf8_to_ucs2(&source, UINT32_MAX);
    if (character != 0 && clean.add(character) == CleanText::Outcome::kNoRoom) break;
  }
  clean.terminate();
  if (clean.characters() < minimum) return -2;
  return clean.bytes() > 0 ? 1 : 0;
}
