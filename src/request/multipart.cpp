#include "request/multipart.h"

#include <unistd.h>

#include "request/part_headers.h"

namespace tavik {

namespace {

// Any other than 0 ends the parts.
constexpr uint32_t kLastPart = 3;

// 0 if another part follows.
int32_t decode_part(void* context, const cgi_attr& boundary, cgi_handler handler) {
  PartHeaders part(boundary);
  part.read(STDIN_FILENO);
  if (handler == nullptr || part.count() == 1) {
    return scan_boundary(STDIN_FILENO, boundary.value, kLastPart, nullptr, nullptr);
  }
  return handler(context, part.records(), part.count(), CGI_KIND_MULTIPART);
}

}  // namespace

int32_t decode_multipart(void* context, char* boundary, cgi_handler handler) {
  char name[] = "boundary";
  const cgi_attr record{nullptr, name, boundary};
  if (handler != nullptr) {
    cgi_attr first = record;
    handler(context, &first, 1, CGI_KIND_MULTIPART);
  }
  while (decode_part(context, record, handler) == 0) {
  }
  return handler == nullptr ? 0 : handler(context, nullptr, 0, CGI_KIND_MULTIPART);
}

}  // namespace tavik
