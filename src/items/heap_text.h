// A text from malloc() that is freed at the end of its scope.
#ifndef TAVIK_ITEMS_HEAP_TEXT_H
#define TAVIK_ITEMS_HEAP_TEXT_H

#include <stdarg.h>
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

}  // namespace tavik

#endif
