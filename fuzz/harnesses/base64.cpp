// Base64 both ways: any bytes come back, and any text decodes as filtering it and counting tells.
#include "harness.h"

namespace {

constexpr std::string_view kAlphabet =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

void encode_and_decode(const std::string& bytes) {
  const auto length = static_cast<int32_t>(bytes.size());
  std::vector<char> text((bytes.size() + 2) / 3 * 4 + 1);
  const auto size = static_cast<int32_t>(text.size());
  EXPECT(base64_encode(text.data(), size - 1, bytes.data(), length) == -1);
  EXPECT(base64_encode(text.data(), size, bytes.data(), length) == size - 1);
  EXPECT(strlen(text.data()) == text.size() - 1);
  std::vector<char> back(bytes.size());
  EXPECT(base64_decode(back.data(), length, text.data(), size - 1) == length);
  EXPECT(std::equal(back.begin(), back.end(), bytes.begin()));
}

// The bytes of a text without padding; a last character alone is a byte too.
std::string bytes_of(const std::string& characters) {
  std::string bytes;
  uint32_t bits = 0;
  uint32_t held = 0;
  for (const char character : characters + (characters.size() % 4 == 1 ? "A" : "")) {
    bits = bits << 6 | static_cast<uint32_t>(kAlphabet.find(character));
    held += 6;
    if (held < 8) continue;
    held -= 8;
    bytes += static_cast<char>(bits >> held);
  }
  return bytes;
}

void decode(const std::string& text) {
  std::string kept;
  for (const char c : text) {
    if (c == '=' || kAlphabet.find(c) != std::string_view::npos) kept += c;
  }
  const std::string characters = kept.substr(0, kept.find('='));
  const std::string padding = kept.substr(characters.size());
  const bool is_well_formed =
      kept.size() % 4 == 0 && padding.size() < 4 && padding == std::string(padding.size(), '=');
  const std::string expected = is_well_formed ? bytes_of(characters) : "";
  std::vector<char> out(is_well_formed ? expected.size() : text.size());
  const auto length = static_cast<int32_t>(text.size());
  const auto room = static_cast<int32_t>(out.size());
  const int32_t result = base64_decode(out.data(), room, text.data(), length);
  EXPECT(result == (is_well_formed ? room : -1) || text.empty() || out.empty());
  EXPECT(!is_well_formed || std::equal(out.begin(), out.end(), expected.begin()));
  if (is_well_formed && room > 0) {
    EXPECT(base64_decode(out.data(), room - 1, text.data(), length) == -2);
  }
}

}  // namespace

int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string input = fuzz::Input(data, size).rest();
  encode_and_decode(input);
  decode(input);
  return 0;
}
