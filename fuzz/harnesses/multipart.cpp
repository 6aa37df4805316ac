// A multipart body on descriptor 0: lines, delimiters and the whole decoder, beside searches in
// the whole body. The first byte chooses, the first line is the boundary.
#include <strings.h>

#include "harness.h"
#include "request/cgidecode.h"

namespace {

constexpr int32_t kEndCode = 5;

struct Request {
  std::string boundary;
  std::string body;
  bool takes_bodies;
  int calls = 0;
  bool closed = false;
};

// The place on descriptor 0.
size_t offset() {
  return static_cast<size_t>(lseek(STDIN_FILENO, 0, SEEK_CUR));
}

int32_t collect(void* argument, const void* data, uint32_t length) {
  static_cast<std::string*>(argument)->append(static_cast<const char*>(data), length);
  return 0;
}

int32_t scan_one(const std::string& boundary, const std::string& body) {
  const size_t start = offset();
  std::string delivered;
  const int32_t result =
      scan_boundary(STDIN_FILENO, fuzz::Exact(boundary).get(), kEndCode, collect, &delivered);
  const std::string used = boundary.substr(0, boundary.find('\r'));
  if (used.empty() || used.size() > 1020) {
    EXPECT(result == 2 && delivered.empty() && offset() == start);
    return result;
  }
  const std::string rest = body.substr(start);
  const size_t mark = rest.find("\r\n--" + used);
  const size_t behind = mark + 4 + used.size();
  if (mark == std::string::npos || behind + 2 > rest.size()) {
    EXPECT(result == 2 && rest.compare(0, delivered.size(), delivered) == 0);
    EXPECT(rest.size() - delivered.size() <= used.size() + (mark == std::string::npos ? 3 : 5));
    return result;
  }
  const bool follows = rest.compare(behind, 2, "\r\n") == 0;
  EXPECT(delivered == rest.substr(0, mark));
  EXPECT(result == (follows ? 0 : kEndCode));
  EXPECT(offset() == std::min(start + behind + (follows ? 2 : 4), body.size()));
  return result;
}

int32_t take(void* context, cgi_attr* attrs, int32_t count, int32_t kind) {
  Request& request = *static_cast<Request*>(context);
  EXPECT(kind == CGI_KIND_MULTIPART && !request.closed && count <= 6);
  request.closed = attrs == nullptr;
  EXPECT((count == 0) == request.closed);
  if (request.closed) return -7;
  EXPECT((count == 1) == (request.calls++ == 0));
  EXPECT(attrs[0].parent == nullptr && strcmp(attrs[0].name, "boundary") == 0);
  EXPECT(request.boundary == attrs[0].value);
  for (int32_t i = 1; i < count; ++i) {
    const cgi_attr* const parent = attrs[i].parent;
    EXPECT(strpbrk(attrs[i].value, parent == nullptr ? ";" : "\"") == nullptr);
    if (parent == nullptr) {
      EXPECT(strncasecmp(attrs[i].name, "Content-", 8) == 0);
    } else {
      EXPECT(attrs < parent && parent < attrs + i && parent->parent == nullptr);
    }
  }
  return count > 1 && request.takes_bodies ? scan_one(request.boundary, request.body) : 0;
}

void read_lines(const std::string& body, uint32_t size) {
  for (;;) {
    const size_t start = offset();
    std::vector<char> buffer(size);
    const int32_t length = full_line_read_fd(STDIN_FILENO, buffer.data(), size);
    const size_t line_end = body.find("\r\n", start);
    if (line_end == std::string::npos || line_end - start > size - 2) {
      EXPECT(length == 0 && offset() == body.size());
      return;
    }
    EXPECT(offset() == line_end + 2);
    EXPECT(body.substr(start, static_cast<size_t>(length)) == buffer.data() ||
           body.find('\0') != std::string::npos);
    EXPECT(static_cast<size_t>(length) == line_end - start);
  }
}

}  // namespace

int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  fuzz::Input input(data, size);
  const uint8_t choice = input.byte();
  Request request{input.line().c_str(), input.rest(), (choice & 1) != 0};
  const fuzz::File file(request.body);
  dup2(file.fd(), STDIN_FILENO);
  lseek(STDIN_FILENO, 0, SEEK_SET);
  if ((choice & 2) != 0) {
    while (scan_one(request.boundary, request.body) == 0) {
    }
  } else if ((choice & 4) != 0) {
    read_lines(request.body, 2 + (choice >> 3));
  } else {
    const fuzz::Exact boundary(request.boundary);
    const bool has_handler = (choice & 8) == 0;
    const int32_t result = tavik::cgidecode(&request, boundary.get(), has_handler ? take : nullptr,
                                            CGI_KIND_MULTIPART);
    EXPECT(result == (has_handler ? -7 : 0) && request.closed == has_handler);
  }
  return 0;
}
