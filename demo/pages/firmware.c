/*
 * "Firmware": takes a firmware image of any size and shows the one that is stored. The body goes
 * from the request to the disk through a buffer of one kilobyte.
 */
#include "shared/access.h"
#include "shared/device_log.h"
#include "shared/page.h"
#include "shared/path.h"
#include "shared/upload.h"

#define IMAGE "image"

static char folder[PATH_SIZE];

static int32_t receive(void* context, cgi_attr* attrs, int32_t count, int32_t kind) {
  uint32_t* status = context;
  if (kind != CGI_KIND_MULTIPART || count < 2) return 0;
  const char* name = upload_name(attrs, count, IMAGE);
  if (name == NULL) return upload_skip(attrs);
  if (name[0] == '\0') {
    *status = UPLOAD_NO_FILE;
    return upload_skip(attrs);
  }
  int32_t result = upload_store(attrs, folder, IMAGE, UINT64_MAX, status);
  device_log("firmware: %s", upload_messages[*status].text);
  return result;
}

/* The commands hold no text of a user. */
static void print_stored(void) {
  print_str("<h2>Stored image</h2>\r\n");
  if (stat_item(folder, IMAGE) < 0) {
    print_str("<p>None.</p>\r\n");
    return;
  }
  print_str("<table class=\"facts\">\r\n<tr><th scope=\"row\">Bytes</th><td>");
  run_shell(0, "wc -c <\"%s/" IMAGE "\"", folder);
  print_str("</td></tr>\r\n<tr><th scope=\"row\">SHA-256</th><td><code>");
  run_shell(0, "sha256sum <\"%s/" IMAGE "\" | cut -c 1-64", folder);
  print_str("</code></td></tr>\r\n</table>\r\n");
}

int main(void) {
  uint32_t told = UPLOAD_NONE;
  access_guard();
  path_join(folder, state_folder(), "firmware");
  getcgivars(&told, receive, request_is_post() ? NULL : told_read);
  if (request_is_post()) {
    told_redirect("firmware", told);
    return 0;
  }
  page_begin_scripted("firmware", "Firmware", PAGE_ASSETS "/upload.js");
  told_print(told, upload_messages, UPLOAD_STATUS_COUNT);
  upload_form("firmware", IMAGE, "Image file");
  print_stored();
  page_end();
  return 0;
}
