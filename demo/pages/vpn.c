/* "VPN": the tunnel's other end, its cipher and its digest. */
#include "shared/page.h"
#include "shared/text_select.h"

enum { PEER, CIPHER, DIGEST, SETTING_COUNT };

static const setting settings[SETTING_COUNT] = {
    [PEER] = {"vpnpeer", "Server", 63, 0, textbox_filter_dns6},
    [CIPHER] = {.name = "vpncipher", .label = "Cipher"},
    [DIGEST] = {.name = "vpndigest", .label = "Digest"},
};

static const struct {
  selectbox_text_row row;
  const char* fallback;
} selects[SETTING_COUNT] = {
    [CIPHER] = {get_ovpn_cipher, "AES-256-CBC"},
    [DIGEST] = {get_ovpn_hash, "SHA256"},
};

static int32_t store(uint32_t index, const char* text) {
  const setting* field = &settings[index];
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
  page_form_end();
  page_end();
}

int main(void) {
  return page_run("vpn", save, print_page);
}
