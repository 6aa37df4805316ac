#include "plain.h"

#include <dirent.h>

static void passwords(const char* directory) {
  const auth_pair users[] = {{"root", 7}, {NULL, 0}};
  passwd_state state;
  passwd_entry entry = {0, "old", 0, NULL, 0, NULL};
  uint32_t rejected = 9;
  setenv("REMOTE_USER", "root", 1);
  CHECK(get_auth(users) == 7);
  char* hash = crypt_encode(0x31, "old", 1);
  CHECK(hash != NULL && crypt_detect(hash, 34) == 0x31);
  CHECK(crypt_cmp(0x31, hash, "old") == 0 && crypt_cmp(0x31, hash, "new") != 0);
  CHECK(create_item(directory, "password", hash, 34) == 35);
  free(hash);
  CHECK(strcmp(passwd_chars(), "a-z A-Z 0-9 . , - + / : ; # @") == 0);
  entry.new_status = chk_new_passwd("new", &entry.new_text, 1, 8);
  entry.repeat_status = chk_new_passwd("new", &entry.repeat_text, 1, 8);
  CHECK(entry.new_status == PW_STATUS_ACCEPTED && strcmp(entry.new_text, "new") == 0);
  CHECK(rd_passwd(directory, "password", &state, 5) == 0x31 && state.caller_word == 5);
  update_pw(&entry, &state, directory, 1);
  CHECK(state.status == PW_STATUS_CHANGED);
  CHECK(update_password_item(directory, "password", "clear", 8, NULL, &rejected) == 6);
  CHECK(rejected == 0);
  CHECK(remove_item(directory, "password") == 0);
}

static uint32_t show_name(uintptr_t context, const char* name, int32_t position,
                          const char* tooltip) {
  printf("%c%s%d%s", (char)context, name, (int)position, tooltip);
  return 1;
}

static int32_t show_link(uintptr_t context, uint32_t number, uint32_t mask, const char* tooltip) {
  printf("%c%u%u%s", (char)context, (unsigned)number, (unsigned)mask, tooltip);
  return 0;
}

static void certificates(const char* directory) {
  char folder[32], path[64], name[8];
  char* heap = NULL;
  cert_dir listing;
  const cert_tool tool = {NULL, "echo b #", ""};
  cert_link links[] = {{NULL, ".key", NULL, "echo c #", "", 'L', 1}, {NULL, 0, 0, 0, 0, 0, 0}};
  snprintf(folder, sizeof folder, "%s/", directory);
  links[0].directory = folder;
  snprintf(path, sizeof path, "%sa.pem", folder);
  CHECK(create_item_uint(folder, "a.pem", 3) == 2);
  CHECK(asprint_tooltip(&heap, "x", NULL, "echo", "b") == 23);
  CHECK(strcmp(heap, " title=\"-in x -noout b\"") == 0);
  free(heap);
  CHECK(cert_dir_setup(&listing, folder, &tool, links) == 1);
  show_certificates(&listing, 'C', show_name, show_link);
  gen_selectbox_certs(folder, "n", "a.pem", "none", 0, NULL);
  CHECK(save_selectbox_cert(name, 7, "YS5wZW0=") == 5 && strcmp(name, "a.pem") == 0);
  CHECK(create_item(directory, ".choice", "", 0) == 1);
  CHECK(update_cert_item(directory, ".choice", "YS5wZW0=", 9) == 6);
  CHECK(gen_selectbox_certs_item(directory, ".choice", "n", folder, "-", 9, "") ==
        PF_KEEP_NONE_OPTION);
  delete_certificate(&listing, 0);
  CHECK(listing.count == 0 && stat_item(directory, "a.pem") == -1);
  cert_dir_free(&listing);
  CHECK(listing.list == NULL && remove_item(directory, ".choice") == 0);
}

void accounts(const char* directory) {
  passwords(directory);
  certificates(directory);
}
