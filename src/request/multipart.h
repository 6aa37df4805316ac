// A multipart body, taken from standard input part by part.
#ifndef TAVIK_REQUEST_MULTIPART_H
#define TAVIK_REQUEST_MULTIPART_H

#include "tavik.h"

namespace tavik {

// Makes the handler calls that getcgivars() tells of. handler may be null. The result is that of
// the closing call, 0 without a handler.
int32_t decode_multipart(void* context, char* boundary, cgi_handler handler);

}  // namespace tavik

#endif
