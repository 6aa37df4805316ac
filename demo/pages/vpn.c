/* "VPN": the tunnel's other end, its cipher, its digest, and the certificate it shows. */
#include <string.h>

#include "shared/certificate_store.h"
#include "shared/choice_controls.h"
#include "shared/page.h"

static void print_certificate(const setting* about) {
  gen_selectbox_certs_item(state_folder(), about->name, about->name, certificate_folder(), "None",
                           about->maximum, " id=\"vpncert\"");
}

/* What is sent can be any path: a file of the folder is wanted, or none. */
static int32_t store_certificate(const setting* about, const char* text) {
  char file[CERTIFICATE_NAME_BYTES + 2] = ""; /* is terminated behind a name that is too long */
  int32_t length = save_selectbox_cert(file, about->maximum, text);
  if (length == 0 ? *text != '\0' : strlen(file) != (size_t)length) return -1;
  if (*file == '.' || strchr(file, '/') != NULL) return -1;
  if (length > 0 && stat_item(certificate_folder(), file) != 0) return -1;
  return update_cert_item(state_folder(), about->name, text, about->maximum);
}

static const control certificate_select = {print_certificate, store_certificate, 0};

enum { SETTING_COUNT = 4 };

static const setting settings[SETTING_COUNT] = {
    {"vpnpeer", "Server", .maximum = 63, .filter = textbox_filter_dns6},
    {"vpncipher", "Cipher", &text_select, .row = get_ovpn_cipher, .fallback = "AES-256-CBC"},
    {"vpndigest", "Digest", &text_select, .row = get_ovpn_hash, .fallback = "SHA256"},
    {"vpncert", "Certificate", &certificate_select, .maximum = CERTIFICATE_NAME_BYTES},
};

static int32_t save(void* context, cgi_attr* attrs, int32_t count, int32_t kind) {
  (void)kind;
  outcome_store_form(context, attrs, count, settings, SETTING_COUNT, setting_store);
  return 0;
}

static void print_page(const outcome* result) {
  page_begin("vpn", "VPN");
  outcome_print(result, settings, SETTING_COUNT);
  page_form("vpn");
  for (int s = 0; s < SETTING_COUNT; s++) setting_print(&settings[s]);
  page_form_end("Save");
  page_end();
}

int main(void) {
  return page_run("vpn", save, print_page);
}
