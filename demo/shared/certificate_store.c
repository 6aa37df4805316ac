#include "shared/certificate_store.h"

#include <dirent.h>
#include <string.h>

#include "shared/path.h"
#include "shared/state.h"

const char* certificate_folder(void) {
  static char folder[PATH_SIZE];
  path_join(folder, state_folder(), "certificates/");
  return folder;
}

static int32_t name_character(uint32_t position, uint32_t character) {
  return character >= 0x20 && character != 0x7F && textbox_filter_shell_quoted(position, character);
}

int32_t certificate_name_fits(const char* name) {
  char clean[CERTIFICATE_NAME_BYTES + 1];
  if (name[0] == '.' || strlen(name) > CERTIFICATE_NAME_BYTES) return 0;
  scan_textbox(name, CERTIFICATE_NAME_BYTES, 0, clean, CERTIFICATE_NAME_BYTES, name_character);
  return name[0] != '\0' && strcmp(name, clean) == 0;
}

int32_t certificate_position(const cert_dir* listing, const char* name) {
  for (int32_t i = 0; i < listing->count; i++) {
    if (strcmp(listing->list[i]->d_name, name) == 0) return i;
  }
  return -1;
}

int32_t certificate_delete(const char* name) {
  cert_dir listing;
  int32_t deleted = -1;
  cert_dir_setup(&listing, certificate_folder(), NULL, NULL);
  int32_t position = certificate_position(&listing, name);
  if (position >= 0) {
    delete_certificate(&listing, position);
    deleted = certificate_position(&listing, name) < 0;
  }
  cert_dir_free(&listing);
  return deleted;
}
