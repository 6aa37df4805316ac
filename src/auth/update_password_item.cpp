#include "fields/bullet.h"
#include "fields/byte_size.h"
#include "fields/clean_text.h"
#include "items/stack_buffer.h"
#include "tavik.h"

using tavik::CleanText;

int32_t update_password_item(const char* directory, const char* name, const char* text,
                             uint32_t maximum, textbox_filter filter, uint32_t* rejected_count) {
  const uint32_t size = tavik::clean_size(text, maximum);
  char* const password = TAVIK_STACK_BUFFER(size + 1);
  CleanText clean(password, size, filter);
  uint32_t decoded = 0;
  uint32_t rejected = 0;
  while (*text != '\0' && clean.characters() < maximum) {
    const uint32_t character = utf8_to_ucs2(&text, UINT32_MAX);
    if (character == 0) continue;
    ++decoded;
    if (character == tavik::kBullet) continue;
    if (clean.add(character) == CleanText::Outcome::kRefused) ++rejected;
  }
  clean.terminate();
  if (rejected_count != nullptr) *rejected_count = rejected;
  if (decoded != clean.characters()) return 0;
  return update_item(directory, name, password, tavik::byte_size(maximum));
}
