// Texts from malloc(): one that is freed at the end of its scope, and the growth of one.
#ifndef TAVIK_ITEMS_HEAP_TEXT_H
#define TAVIK_ITEMS_HEAP_TEXT_H

#include <stdarg.h>
#include <stdint.h>
#include <stdlib.h>

namespace tavik {

class HeapText {
 public:
  explicit HeapText(char* text = nullptr) : text_(text) {}
  ~HeapText() { free(text_); }
  HeapText(const HeapText&) = delete;
  HeapText& operator=(const HeapText&) = delete;

  [[nodiscard]] char* get() const { return text_; }
  // For functions that store a text through a pointer, on success or always.
  char** out() { return &text_; }
  char* release() {
    char* text = text_;
    text_ = nullptr;
    return text;
  }

 private:
  char* text_;
};

// The text that a printf format yields, on the heap; null if it cannot be made.
[[gnu::format(printf, 1, 0)]] char* format_text(const char* format, va_list arguments);

// Heap buffers whose size is a result grow by this many bytes at a time.
constexpr uint32_t kGrowth = 4096;

// Makes the buffer larger by kGrowth; false, with nothing changed, if there is no memory or the
// size would no longer fit an int32_t.
bool grow(char*& buffer, uint32_t& size);

}  // namespace tavik

#endif
