// URL-encoded text through the decoder, beside a decoder that knows the digits of strtoul() alone.
#include <ctype.h>

#include "harness.h"
#include "request/cgidecode.h"

namespace {

struct Part {
  std::string text;
  bool is_plain = true;  // no "%" stands ahead of anything but two digits
};

Part unescape(const std::string& encoded) {
  Part part;
  for (size_t at = 0; at < encoded.size(); ++at) {
    if (encoded[at] != '%') {
      part.text += encoded[at];
      continue;
    }
    if (at + 2 >= encoded.size()) break;
    const std::string digits = encoded.substr(at + 1, 2);
    for (const char digit : digits)
      part.is_plain &= isxdigit(static_cast<unsigned char>(digit)) != 0;
    part.text += static_cast<char>(strtoul(digits.c_str(), nullptr, 16));
    at += 2;
  }
  part.text = part.text.c_str();
  return part;
}

void compare(const std::string& encoded, const char* decoded) {
  const Part part = unescape(encoded);
  EXPECT(!part.is_plain || part.text == decoded);
  EXPECT(strlen(decoded) <= encoded.size());
}

int32_t take(void* context, cgi_attr* attrs, int32_t count, int32_t kind) {
  std::string text = *static_cast<std::string*>(context);
  std::replace(text.begin(), text.end(), '+', ' ');
  std::replace(text.begin(), text.end(), ';', '&');
  EXPECT(kind == CGI_KIND_FORM);
  EXPECT(count == 1 + std::count(text.begin(), text.end(), '&'));
  size_t at = 0;
  for (const cgi_attr& attr : std::vector<cgi_attr>(attrs, attrs + count)) {
    const std::string pair = text.substr(at, text.find('&', at) - at);
    at += pair.size() + 1;
    const size_t equals = std::min(pair.find('='), pair.size());
    EXPECT(attr.parent == nullptr);
    compare(pair.substr(0, equals), attr.name);
    compare(equals < pair.size() ? pair.substr(equals + 1) : "", attr.value);
  }
  return -7;
}

}  // namespace

int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  std::string text = fuzz::Input(data, size).text();
  const fuzz::Exact decoded(text);
  const fuzz::Exact counted(text);
  const int32_t result = tavik::cgidecode(&text, decoded.get(), take, CGI_KIND_FORM);
  EXPECT(result == (text.empty() ? 0 : -7));
  EXPECT(text.empty() || tavik::cgidecode(nullptr, counted.get(), nullptr, CGI_KIND_FORM) > 0);
  return 0;
}
