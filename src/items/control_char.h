// What ends a value in an item or in a line of a database file.
#ifndef TAVIK_ITEMS_CONTROL_CHAR_H
#define TAVIK_ITEMS_CONTROL_CHAR_H

namespace tavik {

// The C locale's iscntrl(), whatever locale the page has set.
inline bool is_control(char c) {
  const auto byte = static_cast<unsigned char>(c);
  return byte < 0x20 || byte == 0x7F;
}

}  // namespace tavik

#endif
