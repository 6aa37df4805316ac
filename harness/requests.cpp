#include <cctype>
#include <cstdio>
#include <string_view>

#include "tavik_harness.h"

namespace tavik_harness {

namespace {

std::string url_encode(const std::string& text) {
  std::string encoded;
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (isalnum(byte) != 0 || std::string_view("-._*").find(c) != std::string_view::npos) {
      encoded += c;
    } else if (c == ' ') {
      encoded += '+';
    } else {
      char escape[4];
      snprintf(escape, sizeof escape, "%%%02X", byte);
      encoded += escape;
    }
  }
  return encoded;
}

PageRequest post(const std::string& type, const std::string& body) {
  PageRequest request;
  request.environment = {{"REQUEST_METHOD", "POST"},
                         {"CONTENT_TYPE", type},
                         {"CONTENT_LENGTH", std::to_string(body.size())}};
  request.body = body;
  return request;
}

}  // namespace

PageRequest get_request(const std::string& query) {
  PageRequest request;
  request.environment = {{"REQUEST_METHOD", "GET"}, {"QUERY_STRING", query}};
  return request;
}

PageRequest form_request(const std::vector<std::pair<std::string, std::string>>& fields) {
  std::string body;
  for (const auto& [name, value] : fields) {
    if (!body.empty()) body += '&';
    body += url_encode(name) + "=" + url_encode(value);
  }
  return post("application/x-www-form-urlencoded", body);
}

PageRequest upload_request(const std::string& field, const std::string& filename,
                           const std::string& content) {
  const std::string boundary = "----tavik-harness-7d8f2c";
  return post("multipart/form-data; boundary=" + boundary,
              "--" + boundary + "\r\nContent-Disposition: form-data; name=\"" + field +
                  "\"; filename=\"" + filename +
                  "\"\r\nContent-Type: application/octet-stream\r\n\r\n" + content + "\r\n--" +
                  boundary + "--\r\n");
}

}  // namespace tavik_harness
