// File names of certificates and of the files that belong to them.
#ifndef TAVIK_AUTH_CERT_PATH_H
#define TAVIK_AUTH_CERT_PATH_H

#include <stddef.h>

namespace tavik {

// The length of a name up to its last ".", or all of it.
size_t base_length(const char* name);

// The path of a file on the heap; null if it cannot be made. A suffix takes the place of the
// name's extension, a null one leaves the name whole.
char* cert_path(const char* directory, const char* name, const char* suffix);

}  // namespace tavik

#endif
