// The end of a text behind a mark, such as the last component of a path.
#ifndef TAVIK_ITEMS_BEHIND_LAST_H
#define TAVIK_ITEMS_BEHIND_LAST_H

#include <string.h>

namespace tavik {

// The text behind the last such mark; all of it if there is none.
inline const char* behind_last(const char* text, char mark) {
  const char* const last = strrchr(text, mark);
  return last == nullptr ? text : last + 1;
}

}  // namespace tavik

#endif
