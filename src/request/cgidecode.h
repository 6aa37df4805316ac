// Turns one encoded text into records and hands them to the page's handler.
#ifndef TAVIK_REQUEST_CGIDECODE_H
#define TAVIK_REQUEST_CGIDECODE_H

#include "tavik.h"

namespace tavik {

// text is decoded in place and may be null, as may handler. For CGI_KIND_MULTIPART it is the
// boundary, and what is decoded comes from standard input. The result is the handler's, or what
// getcgivars() tells of a text without a handler call.
int32_t cgidecode(void* context, char* text, cgi_handler handler, int32_t kind);

}  // namespace tavik

#endif
