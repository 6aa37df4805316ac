#include <stdlib.h>
#include <string.h>
#include <strings.h>
#include <unistd.h>

#include "items/heap_text.h"
#include "request/cgidecode.h"
#include "request/fatal.h"
#include "tavik.h"

using tavik::cgidecode;
using tavik::fatal;
using tavik::HeapText;

namespace {

enum class Method { kQuery, kPost };

Method request_method() {
  const char* const method = getenv("REQUEST_METHOD");
  if (method == nullptr) fatal("getcgivars(): no REQUEST_METHOD specified.\r");
  if (strcmp(method, "GET") == 0 || strcmp(method, "HEAD") == 0) return Method::kQuery;
  if (strcmp(method, "POST") == 0) return Method::kPost;
  fatal("getcgivars(): Unsupported REQUEST_METHOD.\r");
}

void check_content_type() {
  const char* const type = getenv("CONTENT_TYPE");
  if (type == nullptr || strcasecmp(type, "application/x-www-form-urlencoded") != 0) {
    fatal("getcgivars(): Unsupported Content-Type.\r");
  }
}

int32_t content_length() {
  const char* const text = getenv("CONTENT_LENGTH");
  const long length = text == nullptr ? 0 : strtol(text, nullptr, 10);
  if (length == 0) fatal("getcgivars(): No Content-Length was sent with the POST request.\r");
  if (length > INT32_MAX) return INT32_MAX;
  return length < 0 ? -1 : static_cast<int32_t>(length);
}

int32_t decode_query(void* context, cgi_handler handler, int32_t kind) {
  const char* const query = getenv("QUERY_STRING");
  const HeapText copy(strdup(query == nullptr ? "" : query));
  return cgidecode(context, copy.get(), handler, kind);
}

// The request's body, of which less than length may have arrived.
char* read_body(int32_t length) {
  HeapText body(length < 0 ? nullptr : static_cast<char*>(malloc(static_cast<size_t>(length) + 1)));
  if (body.get() == nullptr) fatal("getcgivars(): Couldn't malloc for cgiinput.\r");
  const int32_t got = full_read_fd(STDIN_FILENO, body.get(), length);
  if (got < 0) {
    free(body.release());
    fatal("getcgivars(): Couldn't read CGI input from STDIN.\r");
  }
  body.get()[got] = '\0';
  return body.release();
}

int32_t decode_post(void* context, cgi_handler body_handler, cgi_handler query_handler) {
  check_content_type();
  const int32_t length = content_length();
  int32_t queried = 0;
  if (query_handler != nullptr) queried = decode_query(context, query_handler, CGI_KIND_POST_QUERY);
  const HeapText body(read_body(length));
  if (queried < 0) return queried;
  return cgidecode(context, body.get(), body_handler, CGI_KIND_FORM);
}

}  // namespace

int32_t getcgivars(void* context, cgi_handler body_handler, cgi_handler query_handler) {
  if (request_method() == Method::kPost) return decode_post(context, body_handler, query_handler);
  return decode_query(context, query_handler != nullptr ? query_handler : body_handler,
                      CGI_KIND_QUERY);
}
