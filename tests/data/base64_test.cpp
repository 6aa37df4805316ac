#include <gtest/gtest.h>

#include "support/page_process.h"
#include "tavik.h"

namespace {

// What a text decodes to, or the failing result as a number.
std::string decoded(const std::string& text, int32_t size) {
  std::string bytes(text.size() + 1, '#');
  const int32_t length =
      base64_decode(bytes.data(), size, text.data(), static_cast<int32_t>(text.size()));
  if (length < 0) return std::to_string(length);
  EXPECT_EQ(bytes[static_cast<size_t>(length)], '#') << "no terminator is written";
  return bytes.substr(0, static_cast<size_t>(length));
}

TEST(Base64, AgreesWithTheSystemsTool) {
  for (const int32_t count : {0, 1, 2, 3, 1790, 1791, 1792}) {
    std::string bytes;
    for (int i = 1; i <= count; ++i) bytes += static_cast<char>(i * (i / 256 + 1) + i / 256);
    const std::string broken = test::run_page("/usr/bin/base64", {{}, bytes, 4096, {}}).output;
    std::string expected = broken;
    std::erase(expected, '\n');
    std::string text(expected.size(), '#');
    const auto length = static_cast<int32_t>(text.size());
    EXPECT_EQ(base64_encode(text.data(), length, bytes.data(), count), -1);
    EXPECT_EQ(text.find_first_not_of('#'), std::string::npos);
    EXPECT_EQ(base64_encode(text.data(), length + 1, bytes.data(), count), length);
    EXPECT_EQ(text, expected);
    EXPECT_EQ(decoded(broken, count), bytes);
    EXPECT_EQ(decoded(broken, count - 1), count == 0 ? "" : "-2");
  }
  char out[8];
  EXPECT_EQ(base64_encode(out, INT32_MAX, out, INT32_MAX), -1);
}

TEST(Base64, DecodesOddTexts) {
  const std::pair<std::string, std::string> cases[] = {
      {{"Zm\0 9\t-v_", 9}, "foo"}, {"Zg =\n=\n", "f"}, {"Zh==", "f"}, {"Z===", "d"}, {" \n-_", ""}};
  for (const auto& [text, bytes] : cases) EXPECT_EQ(decoded(text, 5), bytes) << text;
  for (const char* text : {"Zm", "Zm9vZ", "Zg=a", "Z=9v", "Zg==Zg==", "Zm8==", "Zm8=Zm9v",
                           "===", "====", "Zm9v=", "Zm9vZg=a"}) {
    EXPECT_EQ(decoded(text, 5), "-1") << text;
  }
  EXPECT_EQ(decoded("Zm9vZm9v=a", 5), "-2") << "the first fault counts";
}

}  // namespace
