// Submitted text as it is rebuilt, character by character, from what a filter lets through.
#ifndef TAVIK_FIELDS_CLEAN_TEXT_H
#define TAVIK_FIELDS_CLEAN_TEXT_H

#include <stdint.h>

#include "tavik.h"

namespace tavik {

class CleanText {
 public:
  enum class Outcome { kKept, kRefused, kNoRoom };

  // buffer has room for size bytes and a terminator; filter may be null. Nothing is written yet,
  // since a page may clean a text in its own place.
  CleanText(char* buffer, uint32_t size, textbox_filter filter)
      : buffer_(buffer), size_(size), filter_(filter) {}

  // Adds a character, which is not 0. What is refused or has no room changes nothing.
  Outcome add(uint32_t character);
  void terminate() { buffer_[bytes_] = '\0'; }

  [[nodiscard]] uint32_t bytes() const { return bytes_; }
  [[nodiscard]] uint32_t characters() const { return characters_; }

 private:
  char* buffer_;
  uint32_t size_;
  textbox_filter filter_;
  uint32_t bytes_ = 0;
  uint32_t characters_ = 0;
};

// The room that a text of at most maximum characters needs, cleaned: no more than it has, so that
// nobody but the page decides how large a buffer is.
uint32_t clean_size(const char* text, uint32_t maximum);

}  // namespace tavik

#endif
