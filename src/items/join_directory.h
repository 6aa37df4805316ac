// Where a directory and a name meet: exactly one "/", and none behind an empty directory.
#ifndef TAVIK_ITEMS_JOIN_DIRECTORY_H
#define TAVIK_ITEMS_JOIN_DIRECTORY_H

#include <stddef.h>
#include <string.h>

namespace tavik {

// Puts a directory of length bytes at the start of a path and gives the place for the name. path
// has room for one byte more than the directory.
inline size_t join_directory(char* path, const char* directory, size_t length, const char* name) {
  memcpy(path, directory, length);
  if (length == 0) return 0;
  const bool ends_in_slash = directory[length - 1] == '/';
  const bool begins_with_slash = name[0] == '/';
  if (ends_in_slash && begins_with_slash) return length - 1;
  if (!ends_in_slash && !begins_with_slash) path[length++] = '/';
  return length;
}

}  // namespace tavik

#endif
