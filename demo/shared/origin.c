#include "shared/origin.h"

#include <stdlib.h>
#include <string.h>

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

int32_t origin_allows_post(void) {
  const char* origin = getenv("HTTP_ORIGIN");
  return origin == NULL || names_this_host(origin);
}

int32_t origin_allows_query(void) {
  const char* referer = getenv("HTTP_REFERER");
  return referer != NULL && names_this_host(referer);
}
