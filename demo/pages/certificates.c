/*
 * "Certificates": the certificate files of the device, each with what openssl tells of it; upload,
 * and deletion with a question in between.
 */
#include <dirent.h>
#include <string.h>

#include "shared/access.h"
#include "shared/device_log.h"
#include "shared/page.h"
#include "shared/path.h"
#include "shared/upload.h"

enum { NAME_BYTES = 120, FILE_BYTES = 256 << 10 };

static char folder[PATH_SIZE]; /* ends in "/" */

static int32_t name_character(uint32_t position, uint32_t character) {
  return character >= 0x20 && character != 0x7F && textbox_filter_shell_quoted(position, character);
}

/*
 * The tool's command line has the name between double quotes, so that a name with a character that
 * means something there never comes to be.
 */
static int32_t name_fits(const char* name) {
  char clean[NAME_BYTES + 1];
  if (name[0] == '.' || strlen(name) > NAME_BYTES) return 0;
  return scan_textbox(name, NAME_BYTES, 1, clean, NAME_BYTES, name_character) > 0 &&
         strcmp(name, clean) == 0;
}

static int32_t receive(uint32_t* status, cgi_attr* attrs, int32_t count) {
  const char* name = upload_name(attrs, count, "certificate");
  if (name == NULL) return upload_skip(attrs);
  if (!name_fits(name)) {
    *status = name[0] == '\0' ? UPLOAD_NO_FILE : UPLOAD_BAD_NAME;
    return upload_skip(attrs);
  }
  int32_t result = upload_store(attrs, folder, name, FILE_BYTES, status);
  device_log("certificate \"%s\": %s", name, upload_messages[*status].text);
  return result;
}

/* The listing is the only source of names: what is not in it cannot be deleted. */
static int32_t position_of(const cert_dir* certificates, const char* name) {
  for (int32_t i = 0; i < certificates->count; i++) {
    if (strcmp(certificates->list[i]->d_name, name) == 0) return i;
  }
  return -1;
}

static uint32_t delete_named(const char* name) {
  cert_dir certificates;
  uint32_t status = UPLOAD_NOT_DELETED;
  cert_dir_setup(&certificates, folder, NULL, NULL);
  int32_t position = position_of(&certificates, name);
  if (position >= 0) {
    delete_certificate(&certificates, position);
    if (position_of(&certificates, name) < 0) status = UPLOAD_DELETED;
    device_log("certificate \"%s\": %s", name, upload_messages[status].text);
  }
  cert_dir_free(&certificates);
  return status;
}

static int32_t take(void* context, cgi_attr* attrs, int32_t count, int32_t kind) {
  uint32_t* status = context;
  if (kind == CGI_KIND_MULTIPART) return count < 2 ? 0 : receive(status, attrs, count);
  for (int32_t i = 0; i < count; i++) {
    if (strcmp(attrs[i].name, "delete") == 0) *status = delete_named(attrs[i].value);
  }
  return 0;
}

static char asked[NAME_BYTES + 1]; /* the name whose deletion is to be confirmed */

static int32_t read_query(void* context, cgi_attr* attrs, int32_t count, int32_t kind) {
  for (int32_t i = 0; i < count; i++) {
    if (strcmp(attrs[i].name, "delete") == 0) strsncpy(asked, sizeof asked, attrs[i].value);
  }
  return told_read(context, attrs, count, kind);
}

static void print_question(const cert_dir* certificates) {
  if (position_of(certificates, asked) < 0) return;
  html_printf(1,
              "<form method=\"post\" action=\"certificates\">\r\n"
              "<p>Delete <strong>%s</strong>?</p>\r\n"
              "<input type=\"hidden\" name=\"delete\" value=\"%s\">\r\n"
              "<p class=\"actions\"><button type=\"submit\">Delete it</button>\r\n"
              "<a href=\"certificates\">Keep it</a></p>\r\n</form>\r\n",
              asked, asked);
}

static uint32_t print_row(uintptr_t context, const char* name, int32_t position,
                          const char* tooltip) {
  (void)context;
  (void)position;
  print_str("<tr><td");
  print_str(tooltip);
  html_printf(1, tooltip != NULL ? ">%s" : ">%s <span class=\"quiet\">no certificate</span>", name);
  html_printf(
      1,
      "</td><td><button class=\"plain\" name=\"delete\" value=\"%s\" aria-label=\"Delete %s\">"
      "Delete</button></td></tr>\r\n",
      name, name);
  return 0;
}

static void print_list(const cert_dir* certificates) {
  print_str("<h2>Stored certificates</h2>\r\n");
  if (certificates->count < 1) {
    print_str("<p>None.</p>\r\n");
    return;
  }
  print_str("<form method=\"get\" action=\"certificates\" class=\"rows\">\r\n<table>\r\n");
  show_certificates(certificates, 0, print_row, NULL);
  print_str("</table>\r\n</form>\r\n");
}

int main(void) {
  static const cert_tool tool = {NULL, "openssl x509", "-subject -enddate 2>/dev/null"};
  cert_dir certificates;
  uint32_t told = UPLOAD_NONE;
  access_guard();
  path_join(folder, page_state(), "certificates/");
  getcgivars(&told, take, page_is_post() ? NULL : read_query);
  if (page_is_post()) {
    told_redirect("certificates", told);
    return 0;
  }
  cert_dir_setup(&certificates, folder, &tool, NULL);
  page_begin_scripted("certificates", "Certificates", PAGE_ASSETS "/upload.js");
  told_print(told, upload_messages, UPLOAD_STATUS_COUNT);
  print_question(&certificates);
  upload_form("certificates", "certificate", "Certificate file");
  print_list(&certificates);
  page_end();
  cert_dir_free(&certificates);
  return 0;
}
