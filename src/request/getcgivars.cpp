#include <stdlib.h>
#include <string.h>
#include <strings.h>
#include <unistd.h>

#include "items/heap_text.h"
#include "request/cgidecode.h"
#include "request/fatal.h"
#include "request/skip_space.h"
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

struct BodyType {
  int32_t kind;
  const char* boundary;  // null but for a multipart body
};

// The parameter of a multipart type; null if it is another type, or it has another parameter ahead.
const char* find_boundary(const char* type) {
  constexpr char kType[] = "multipart/form-data";
  constexpr char kBoundary[] = "boundary=";
  const char* const semicolon = strchr(type, ';');
  if (semicolon == nullptr) return nullptr;
  if (strncasecmp(type, kType, static_cast<size_t>(semicolon - type)) != 0) return nullptr;
  const char* const parameter = tavik::skip_space(semicolon + 1);
  if (strncasecmp(parameter, kBoundary, sizeof kBoundary - 1) != 0) return nullptr;
  return parameter + sizeof kBoundary - 1;
}

BodyType body_type() {
  const char* const type = getenv("CONTENT_TYPE");
  if (type != nullptr && strcasecmp(type, "application/x-www-form-urlencoded") == 0) {
    return {CGI_KIND_FORM, nullptr};
  }
  const char* const boundary = type == nullptr ? nullptr : find_boundary(type);
  if (boundary == nullptr) fatal("getcgivars(): Unsupported Content-Type.\r");
  return {CGI_KIND_MULTIPART, boundary};
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
  const BodyType type = body_type();
  const bool multipart = type.kind == CGI_KIND_MULTIPART;
  // A copy, since the query's handler may change the environment.
  HeapText text(multipart ? strdup(type.boundary) : nullptr);
  const int32_t length = content_length();
  int32_t queried = 0;
  if (query_handler != nullptr) queried = decode_query(context, query_handler, CGI_KIND_POST_QUERY);
  if (!multipart) *text.out() = read_body(length);
  if (queried < 0) return queried;
  return cgidecode(context, text.get(), body_handler, type.kind);
}

}  // namespace

int32_t getcgivars(void* context, cgi_handler body_handler, cgi_handler query_handler) {
  if (request_method() == Method::kPost) return decode_post(context, body_handler, query_handler);
  return decode_query(context, query_handler != nullptr ? query_handler : body_handler,
                      CGI_KIND_QUERY);
}
