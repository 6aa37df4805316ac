/*
 * "Certificates": the certificate files of the device, each with what openssl tells of it; upload,
 * and deletion with a question in between.
 */
#include "shared/access.h"
#include "shared/certificate_store.h"
#include "shared/device_log.h"
#include "shared/page.h"
#include "shared/request.h"
#include "shared/upload.h"

enum { FILE_BYTES = 256 << 10 };

static void log_status(const char* name, uint32_t status) {
  device_log("certificate \"%s\": %s", name, upload_messages[status].text);
}

static int32_t receive(uint32_t* status, cgi_attr* attrs, int32_t count) {
  const char* name = upload_name(attrs, count, "certificate");
  if (name == NULL) return upload_skip(attrs);
  if (!certificate_name_fits(name)) {
    *status = name[0] == '\0' ? UPLOAD_NO_FILE : UPLOAD_BAD_NAME;
    return upload_skip(attrs);
  }
  int32_t result = upload_store(attrs, certificate_folder(), name, FILE_BYTES, status);
  log_status(name, *status);
  return result;
}

static int32_t take(void* context, cgi_attr* attrs, int32_t count, int32_t kind) {
  uint32_t* status = context;
  if (kind == CGI_KIND_MULTIPART) return count < 2 ? 0 : receive(status, attrs, count);
  const char* name = request_value(attrs, count, "delete");
  if (name == NULL) return 0;
  int32_t deleted = certificate_delete(name);
  *status = deleted > 0 ? UPLOAD_DELETED : UPLOAD_NOT_DELETED;
  if (deleted >= 0) log_status(name, *status);
  return 0;
}

/* The name whose deletion is to be confirmed. */
static char asked[CERTIFICATE_NAME_BYTES + 1];

static int32_t read_query(void* context, cgi_attr* attrs, int32_t count, int32_t kind) {
  const char* name = request_value(attrs, count, "delete");
  if (name != NULL) strsncpy(asked, sizeof asked, name);
  return told_read(context, attrs, count, kind);
}

static void print_question(const cert_dir* certificates) {
  if (certificate_position(certificates, asked) < 0) return;
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
  getcgivars(&told, take, request_is_post() ? NULL : read_query);
  if (request_is_post()) {
    told_redirect("certificates", told);
    return 0;
  }
  cert_dir_setup(&certificates, certificate_folder(), &tool, NULL);
  page_begin_scripted("certificates", "Certificates", PAGE_ASSETS "/upload.js");
  told_print(told, upload_messages, UPLOAD_STATUS_COUNT);
  print_question(&certificates);
  upload_form("certificates", "certificate", "Certificate file");
  print_list(&certificates);
  page_end();
  cert_dir_free(&certificates);
  return 0;
}
