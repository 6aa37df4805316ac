#include "shared/access.h"

#include <errno.h>
#include <stdlib.h>
#include <unistd.h>

#include "shared/origin.h"
#include "shared/path.h"

static const char* const guarded_pages[] = {"administration", "certificates", "firmware", "log"};

void access_guard(void) {
  static const auth_pair users[] = {{ACCESS_USER, 1}, {NULL, 0}};
  origin_guard();
  if (get_auth(users) != 0) return;
  print_str("Status: 403 Forbidden\r\nContent-Type: text/plain\r\n\r\nLog in first.\r\n");
  exit(0);
}

const char* access_user(void) {
  const char* user = getenv("REMOTE_USER");
  return user != NULL ? user : "-";
}

/* What the server asks for on each page that is not open to everybody. */
static void write_pages(FILE* file, const char* hash) {
  for (size_t i = 0; i < sizeof guarded_pages / sizeof *guarded_pages; i++) {
    fprintf(file, "/cgi-bin/%s:" ACCESS_USER ":%s\n", guarded_pages[i], hash);
  }
}

static void write_user(FILE* file, const char* hash) {
  fprintf(file, ACCESS_USER ":%s\n", hash);
}

/* The file is in one piece at any time, and stays as it was on failure. */
static int32_t replace_file(const char* state, const char* name, const char* hash,
                            void (*write_content)(FILE* file, const char* hash)) {
  char path[PATH_SIZE];
  char temporary[PATH_SIZE];
  path_join(path, state, name);
  path_join(temporary, state, "access.new");
  FILE* file = fopen(temporary, "w");
  if (file == NULL) return -1;
  write_content(file, hash);
  int32_t stored = fflush(file) == 0 && fsync(fileno(file)) == 0;
  if (fclose(file) != 0 || !stored) return -1;
  return rename(temporary, path);
}

int32_t access_configure(const char* state) {
  passwd_state password;
  if (rd_passwd(state, ACCESS_ITEM, &password, 0) == 0) {
    errno = EINVAL;
    return -1;
  }
  int32_t users = replace_file(state, "htpasswd", password.stored, write_user);
  int32_t pages = replace_file(state, "httpd.conf", password.stored, write_pages);
  return users < 0 || pages < 0 ? -1 : 0;
}
