/*
 * Files that arrive in a multipart body. Each is written beside its place and gets its name when
 * all of it is there and stored, so that no half file ever stands under that name. What an upload
 * that ended on the way has left behind goes when the next one begins.
 */
#ifndef DEMO_UPLOAD_H
#define DEMO_UPLOAD_H

#include "shared/told.h"

/* What became of a file; told in words by upload_messages. */
enum {
  UPLOAD_NONE,
  UPLOAD_STORED,
  UPLOAD_NO_FILE,
  UPLOAD_BROKE_OFF,
  UPLOAD_DISK_FULL,
  UPLOAD_TOO_BIG,
  UPLOAD_BAD_NAME,
  UPLOAD_FAILED,
  UPLOAD_DELETED,
  UPLOAD_NOT_DELETED,
  UPLOAD_STATUS_COUNT
};

extern const message upload_messages[UPLOAD_STATUS_COUNT];

/*
 * The file name that came with a part, without folders, for a part that is this field's file.
 * Null for any other part; empty if no file was chosen.
 */
const char* upload_name(const cgi_attr* attrs, int32_t count, const char* field);

/* Passes over a part's body. Result: as scan_boundary(). */
int32_t upload_skip(const cgi_attr* attrs);

/*
 * Stores a part's body as a file of the folder, of at most maximum bytes, and leaves the outcome in
 * status. The name is the page's business. Result: as scan_boundary().
 */
int32_t upload_store(const cgi_attr* attrs, const char* folder, const char* name, uint64_t maximum,
                     uint32_t* status);

/* Prints the control with its label, and what shows the progress, inside a form for uploads. */
void upload_form(const char* page, const char* field, const char* label);

#endif
