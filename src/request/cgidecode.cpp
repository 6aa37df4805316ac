#include "request/cgidecode.h"

#include <stdlib.h>
#include <string.h>

#include "request/multipart.h"
#include "request/url_unescape.h"

namespace tavik {

namespace {

// Ends each pair with a NUL and resolves "+". Separators and "+" are recognised as they were sent,
// before any escape is. The result is the number of pairs.
int32_t split_pairs(char* text) {
  int32_t count = 1;
  for (; *text != '\0'; ++text) {
    if (*text == '+') {
      *text = ' ';
    } else if (*text == ';' || *text == '&') {
      *text = '\0';
      ++count;
    }
  }
  return count;
}

// Fills a record from a pair of the given length.
cgi_attr decode_pair(char* pair, size_t length) {
  cgi_attr attr{nullptr, pair, pair + length};
  if (char* const equals = static_cast<char*>(memchr(pair, '=', length)); equals != nullptr) {
    *equals = '\0';
    attr.value = equals + 1;
    url_unescape(attr.value);
  }
  url_unescape(attr.name);
  return attr;
}

}  // namespace

int32_t cgidecode(void* context, char* text, cgi_handler handler, int32_t kind) {
  if (text == nullptr) return 0;
  if (kind == CGI_KIND_MULTIPART) return decode_multipart(context, text, handler);
  if (*text == '\0') return 0;
  const int32_t count = split_pairs(text);
  if (handler == nullptr) return count;
  auto* const attrs = static_cast<cgi_attr*>(calloc(static_cast<size_t>(count), sizeof(cgi_attr)));
  if (attrs == nullptr) return count;
  char* pair = text;
  for (int32_t i = 0; i < count; ++i) {
    const size_t length = strlen(pair);
    attrs[i] = decode_pair(pair, length);
    pair += length + 1;
  }
  const int32_t result = handler(context, attrs, count, kind);
  free(attrs);
  return result;
}

}  // namespace tavik
