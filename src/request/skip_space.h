// White space between the parts of a header line.
#ifndef TAVIK_REQUEST_SKIP_SPACE_H
#define TAVIK_REQUEST_SKIP_SPACE_H

#include <string.h>

namespace tavik {

// The C locale's isspace(), whatever locale the page has set.
constexpr char kSpaces[] = " \t\n\v\f\r";

inline const char* skip_space(const char* text) {
  return text + strspn(text, kSpaces);
}

inline char* skip_space(char* text) {
  return text + strspn(text, kSpaces);
}

}  // namespace tavik

#endif
