#include "items/behind_last.h"
#include "tavik.h"

const char* valid_filename(const char* path) {
  // Some browsers send the whole path of the file on the user's machine.
  return path == nullptr ? nullptr : tavik::behind_last(tavik::behind_last(path, '\\'), '/');
}
