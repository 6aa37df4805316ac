// The files that a certificate page offers: all of a directory that are not hidden.
#ifndef TAVIK_AUTH_FILE_LIST_H
#define TAVIK_AUTH_FILE_LIST_H

#include <dirent.h>
#include <stdint.h>

namespace tavik {

// Lists them by name, subdirectories included, and gives their number; -1 with a null list if the
// directory cannot be listed.
int32_t list_files(const char* directory, struct dirent*** files);

void free_files(struct dirent** files, int32_t count);

}  // namespace tavik

#endif
