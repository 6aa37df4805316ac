#include "shared/origin.h"

#include <stdlib.h>
#include <string.h>

#include "shared/request.h"

/* Whether a URL, or an origin, names this host. */
static int32_t names_this_host(const char* url) {
  const char* host = getenv("HTTP_HOST");
  const char* authority = strstr(url, "://");
  if (host == NULL || authority == NULL) return 0;
  authority += 3;
  size_t length = strlen(host);
  return strncmp(authority, host, length) == 0 &&
         (authority[length] == '\0' || authority[length] == '/');
}

void origin_guard(void) {
  const char* origin = getenv("HTTP_ORIGIN");
  if (!request_is_post() || origin == NULL || names_this_host(origin)) return;
  print_str(
      "Status: 403 Forbidden\r\nContent-Type: text/plain\r\n\r\n"
      "This form was sent by another site. Nothing was stored.\r\n");
  exit(0);
}

int32_t origin_allows_query(void) {
  const char* referer = getenv("HTTP_REFERER");
  return referer != NULL && names_this_host(referer);
}
