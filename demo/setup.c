/*
 * Makes the demo device's state: a folder that only its owner can enter, and in it each item that
 * is not there yet, with its first value; the folders of uploads; and the administrator's password
 * with what the web server knows of it. Tells the password as long as it is the first one.
 */
#include <errno.h>
#include <stdlib.h>
#include <string.h>
#include <sys/stat.h>

#include "shared/access.h"
#include "shared/first_values.h"
#include "shared/path.h"
#include "tavik.h"

static int fail(const char* what) {
  fprintf(stderr, "setup: %s: %s\n", what, strerror(errno));
  return 1;
}

static int make_items(const char* folder) {
  for (const item_value* item = first_values; item->name != NULL; item++) {
    if (stat_item(folder, item->name) == 0) continue;
    if (create_item(folder, item->name, item->value, (int32_t)strlen(item->value)) < 0) {
      return fail(item->name);
    }
  }
  return 0;
}

static int make_folders(const char* folder) {
  static const char* const names[] = {ACCESS_SAVED, "firmware", "certificates"};
  for (size_t i = 0; i < sizeof names / sizeof *names; i++) {
    char path[PATH_SIZE];
    path_join(path, folder, names[i]);
    if (make_directory(path, 0700, MAKE_DIR_PARENTS) < 0) return fail(names[i]);
  }
  return 0;
}

/* Of the two copies of the password one is enough: a power cut can have emptied the other. */
static char* stored_hash(const char* folder, const char* saved) {
  passwd_state password;
  if (rd_passwd(folder, ACCESS_ITEM, &password, 0) != 0 ||
      rd_passwd(saved, ACCESS_ITEM, &password, 0) != 0) {
    return strdup(password.stored);
  }
  return crypt_encode(0x31, ACCESS_FIRST_PASSWORD, 1);
}

static int make_password(const char* folder) {
  char saved[PATH_SIZE];
  path_join(saved, folder, ACCESS_SAVED);
  char* hash = stored_hash(folder, saved);
  if (hash == NULL) return fail("crypt");
  int32_t length = (int32_t)strlen(hash);
  if (create_item(folder, ACCESS_ITEM, hash, length) < 0 ||
      create_item(saved, ACCESS_ITEM, hash, length) < 0 || access_configure(folder) < 0) {
    return fail(ACCESS_ITEM);
  }
  if (crypt_cmp(0x31, hash, ACCESS_FIRST_PASSWORD) == 0) {
    puts("user " ACCESS_USER ", password " ACCESS_FIRST_PASSWORD);
  }
  free(hash);
  return 0;
}

int main(int argc, char** argv) {
  if (argc != 2) {
    fprintf(stderr, "usage: setup STATE_FOLDER\n");
    return 2;
  }
  const char* folder = argv[1];
  if (mkdir(folder, 0700) != 0 && errno != EEXIST) return fail(folder);
  if (chmod(folder, 0700) != 0) return fail(folder);
  return make_items(folder) || make_folders(folder) || make_password(folder);
}
