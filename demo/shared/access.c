#include "shared/access.h"

#include <errno.h>
#include <stdlib.h>
#include <unistd.h>

#include "shared/page.h"
#include "shared/path.h"

static const char* const guarded_pages[] = {"administration", "certificates", "firmware", "log"};

void access_guard(void) {
  static const auth_pair users[] = {{ACCESS_USER, 1}, {NULL, 0}};
  page_guard();
  if (get_auth(users) != 0) return;
  print_str("Status: 403 Forbidden\r\nContent-Type: text/plain\r\n\r\nLog in first.\r\n");
  exit(0);
}

const char* access_user(void) {
  const char* user = getenv("REMOTE_USER");
  return user != NULL ? user : "-";
}

static int32_t write_pages(FILE* file, const char* hash) {
  for (size_t i = 0; i < sizeof guarded_pages / sizeof *guarded_pages; i++) {
    fprintf(file, "/cgi-bin/%s:" ACCESS_USER ":%s\n", guarded_pages[i], hash);
  }
  return fflush(file) == 0 && fsync(fileno(file)) == 0 ? 0 : -1;
}

int32_t access_configure(const char* state) {
  passwd_state password;
  char path[PATH_SIZE];
  char temporary[PATH_SIZE];
  if (rd_passwd(state, ACCESS_ITEM, &password, 0) == 0) {
    errno = EINVAL;
    return -1;
  }
  path_join(path, state, "httpd.conf");
  path_join(temporary, state, "httpd.conf.new");
  FILE* file = fopen(temporary, "w");
  if (file == NULL) return -1;
  int32_t written = write_pages(file, password.stored);
  if (fclose(file) != 0 || written < 0) return -1;
  return rename(temporary, path);
}
