// The end of a page whose request cannot be served.
#ifndef TAVIK_REQUEST_FATAL_H
#define TAVIK_REQUEST_FATAL_H

namespace tavik {

// Prints a plain-text page of one line and ends the process with status 1. message brings its CR.
[[noreturn]] void fatal(const char* message);

}  // namespace tavik

#endif
