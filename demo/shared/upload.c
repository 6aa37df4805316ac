#include "shared/upload.h"

#include <errno.h>
#include <stdlib.h>
#include <string.h>
#include <unistd.h>

#include "shared/page.h"
#include "shared/path.h"

enum { LAST_PART = 1, INPUT_ENDED = 2 };

const message upload_messages[UPLOAD_STATUS_COUNT] = {
    [UPLOAD_STORED] = {"The file was stored.", 0},
    [UPLOAD_NO_FILE] = {"No file was chosen.", 1},
    [UPLOAD_BROKE_OFF] = {"The upload broke off. Nothing was stored.", 1},
    [UPLOAD_DISK_FULL] = {"The device has no room for this file. Nothing was stored.", 1},
    [UPLOAD_TOO_BIG] = {"The file is too big. Nothing was stored.", 1},
    [UPLOAD_BAD_NAME] = {"The file's name cannot be used here. Nothing was stored.", 1},
    [UPLOAD_FAILED] = {"The file could not be stored.", 1},
    [UPLOAD_DELETED] = {"The file was deleted.", 0},
    [UPLOAD_NOT_DELETED] = {"The file could not be deleted.", 1},
};

static const char* attribute(const cgi_attr* attrs, int32_t count, const char* name) {
  for (int32_t i = 0; i < count; i++) {
    if (attrs[i].parent != NULL && strcmp(attrs[i].name, name) == 0) return attrs[i].value;
  }
  return NULL;
}

const char* upload_name(const cgi_attr* attrs, int32_t count, const char* field) {
  const char* name = attribute(attrs, count, "name");
  return name != NULL && strcmp(name, field) == 0
             ? valid_filename(attribute(attrs, count, "filename"))
             : NULL;
}

int32_t upload_skip(const cgi_attr* attrs) {
  return scan_boundary(0, attrs[0].value, LAST_PART, NULL, NULL);
}

/* A file on its way. */
typedef struct incoming incoming;
struct incoming {
  FILE* file;
  uint64_t room; /* bytes that may still come */
  int error;     /* an errno value */
};

/* The scan goes on behind a failure, so that the browser gets to the answer. */
static int32_t take(void* argument, const void* data, uint32_t length) {
  incoming* upload = argument;
  if (upload->error != 0 || length == 0) return 0;
  if (length > upload->room) {
    upload->error = EFBIG;
  } else if (fwrite(data, length, 1, upload->file) != 1) {
    upload->error = errno;
  }
  upload->room -= length;
  return 0;
}

/* An upload that is still going on loses its file to a later one, and fails in the end. */
static FILE* open_temporary(const char* folder, char path[PATH_SIZE]) {
  char temporaries[PATH_SIZE];
  path_join(temporaries, folder, ".incoming");
  remove_dir_leaf(temporaries);
  if (make_directory(temporaries, 0700, MAKE_DIR_PARENTS) < 0) return NULL;
  path_join(path, temporaries, "XXXXXX");
  int fd = mkstemp(path);
  return fd < 0 ? NULL : fdopen(fd, "w");
}

static uint32_t status_of(int error) {
  if (error == ENOSPC || error == EDQUOT) return UPLOAD_DISK_FULL;
  return error == EFBIG ? UPLOAD_TOO_BIG : UPLOAD_FAILED;
}

static uint32_t keep(incoming* upload, const char* temporary, const char* path) {
  int flushed = fflush(upload->file) == 0 && fsync(fileno(upload->file)) == 0;
  if (!flushed && upload->error == 0) upload->error = errno;
  if (fclose(upload->file) != 0 && upload->error == 0) upload->error = errno;
  if (upload->error == 0 && rename(temporary, path) == 0) return UPLOAD_STORED;
  return status_of(upload->error);
}

int32_t upload_store(const cgi_attr* attrs, const char* folder, const char* name, uint64_t maximum,
                     uint32_t* status) {
  char path[PATH_SIZE];
  char temporary[PATH_SIZE];
  path_join(path, folder, name);
  incoming upload = {open_temporary(folder, temporary), maximum, 0};
  if (upload.file == NULL) {
    *status = status_of(errno);
    return upload_skip(attrs);
  }
  int32_t result = scan_boundary(0, attrs[0].value, LAST_PART, take, &upload);
  if (result == INPUT_ENDED) {
    fclose(upload.file);
    *status = UPLOAD_BROKE_OFF;
  } else {
    *status = keep(&upload, temporary, path);
  }
  if (*status != UPLOAD_STORED) remove_filef("%s", temporary);
  return result;
}

void upload_form(const char* page, const char* field, const char* label) {
  printf("<form method=\"post\" enctype=\"multipart/form-data\" action=\"%s\">\r\n", page);
  page_label(field, label);
  gen_upload(0, " id=\"%s\" name=\"%s\" required", field, field);
  page_field_end();
  print_str(
      "<p class=\"progress\" hidden><progress aria-label=\"Upload\"></progress>\r\n"
      "<output></output></p>\r\n"
      "<p class=\"actions\"><button type=\"submit\">Upload</button>\r\n"
      "<button type=\"button\" class=\"plain\" hidden>Cancel</button></p>\r\n"
      "</form>\r\n");
}
