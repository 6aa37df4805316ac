// The percent decoding of URL-encoded forms.
#ifndef TAVIK_REQUEST_URL_UNESCAPE_H
#define TAVIK_REQUEST_URL_UNESCAPE_H

namespace tavik {

// Decodes a text in place. It only ever gets shorter.
void url_unescape(char* text);

}  // namespace tavik

#endif
