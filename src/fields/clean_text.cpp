#include "fields/clean_text.h"

#include "fields/byte_size.h"
#include "items/value_line.h"

namespace tavik {

CleanText::Outcome CleanText::add(uint32_t character) {
  if (filter_ != nullptr && filter_(bytes_, character) == 0) return Outcome::kRefused;
  char* const at = buffer_ + bytes_;
  const char* const end = ucs2_to_utf8(at, size_ - bytes_, character);
  if (end == at) return Outcome::kNoRoom;
  bytes_ += static_cast<uint32_t>(end - at);
  ++characters_;
  return Outcome::kKept;
}

uint32_t clean_size(const char* text, uint32_t maximum) {
  return static_cast<uint32_t>(limited_length(text, byte_size(maximum)));
}

}  // namespace tavik
