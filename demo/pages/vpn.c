/* "VPN": the tunnel's other end, its cipher, its digest, and the certificate it shows. */
#include <string.h>

#include "shared/page.h"
#include "shared/text_select.h"

enum { PEER, CIPHER, DIGEST, CERTIFICATE, SETTING_COUNT };

static const setting settings[SETTING_COUNT] = {
    [PEER] = {"vpnpeer", "Server", 63, 0, textbox_filter_dns6},
    [CIPHER] = {.name = "vpncipher", .label = "Cipher"},
    [DIGEST] = {.name = "vpndigest", .label = "Digest"},
    [CERTIFICATE] = {.name = "vpncert", .label = "Certificate", .maximum = 120},
};

static const struct {
  selectbox_text_row row;
  const char* fallback;
} selects[SETTING_COUNT] = {
    [CIPHER] = {get_ovpn_cipher, "AES-256-CBC"},
    [DIGEST] = {get_ovpn_hash, "SHA256"},
};

static const char* certificates(void) {
  static char folder[512];
  snprintf(folder, sizeof folder, "%s/certificates", page_state());
  return folder;
}

/* What is sent can be any path: a file of the folder is wanted, or none. */
static int32_t store_certificate(const setting* field, const char* text) {
  char file[128] = "";
  int32_t length = save_selectbox_cert(file, field->maximum, text);
  if (length == 0 ? *text != '\0' : strlen(file) != (size_t)length) return -1;
  if (*file == '.' || strchr(file, '/') != NULL) return -1;
  if (length > 0 && stat_item(certificates(), file) != 0) return -1;
  return update_cert_item(page_state(), field->name, text, field->maximum);
}

static int32_t store(uint32_t index, const char* text) {
  const setting* field = &settings[index];
  if (index == CERTIFICATE) return store_certificate(field, text);
  if (selects[index].row == NULL) {
    return update_textbox_item(page_state(), field->name, text, (uint32_t)field->maximum,
                               field->filter);
  }
  return text_select_store(field->name, text, selects[index].row, 0, selects[index].fallback);
}

static int32_t save(void* context, cgi_attr* attrs, int32_t count, int32_t kind) {
  (void)kind;
  page_store_form(context, attrs, count, settings, SETTING_COUNT, store);
  return 0;
}

static void print_certificate(const setting* field) {
  page_label(field->name, field->label);
  gen_selectbox_certs_item(page_state(), field->name, field->name, certificates(), "None",
                           field->maximum, " id=\"vpncert\"");
  page_field_end();
}

static void print_page(const outcome* result) {
  page_begin("vpn", "VPN");
  page_print_outcome(result, settings, SETTING_COUNT);
  page_form("vpn");
  page_text_field(&settings[PEER]);
  for (int s = CIPHER; s <= DIGEST; s++) {
    page_label(settings[s].name, settings[s].label);
    text_select_print(settings[s].name, selects[s].row, 0, selects[s].fallback);
    page_field_end();
  }
  print_certificate(&settings[CERTIFICATE]);
  page_form_end();
  page_end();
}

int main(void) {
  return page_run("vpn", save, print_page);
}
