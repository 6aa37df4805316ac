#include <gtest/gtest.h>

#include "support/page_process.h"
#include "tavik.h"

namespace {

int32_t decode(const std::string& text, int32_t size, std::string* bytes) {
  *bytes = std::string(text.size(), '#');
  const int32_t result =
      base64_decode(bytes->data(), size, text.data(), static_cast<int32_t>(text.size()));
  bytes->erase(bytes->find_last_not_of('#') + 1);
  return result;
}

TEST(Base64, AgreesWithTheSystemsTool) {
  for (const int32_t count : {0, 1, 2, 3, 1790, 1791, 1792}) {
    std::string bytes, text, back;
    for (int i = 1; i <= count; ++i) bytes += static_cast<char>(i * (i / 256 + 1) + i / 256);
    const std::string broken = test::run_page("/usr/bin/base64", {{}, bytes, 4096, {}}).output;
    std::string expected = broken;
    std::erase(expected, '\n');
    const auto length = static_cast<int32_t>(expected.size());
    text.resize(expected.size());
    EXPECT_EQ(base64_encode(text.data(), length, bytes.data(), count), -1);
    EXPECT_EQ(text, std::string(expected.size(), '\0'));
    EXPECT_EQ(base64_encode(text.data(), length + 1, bytes.data(), count), length);
    EXPECT_EQ(text, expected);
    EXPECT_EQ(decode(broken, count, &back), count);
    EXPECT_EQ(back, bytes);
    EXPECT_EQ(decode(broken, count - 1, &back), count == 0 ? 0 : -2);
  }
}

TEST(Base64, DecodesOddTexts) {
  const struct {
    std::string text, bytes;
    int32_t size, result;
  } cases[] = {
      {std::string("Zm\0 9\t-v_", 9), "foo", 3, 3},
      {"Zg =\n=\n", "f", 1, 1},
      {"Zh==", "f", 1, 1},
      {"Z===", "d", 1, 1},
      {" \n-_", "", 0, 0},
      {"Zm", "", 9, -1},
      {"Zm9vZ", "foo", 9, -1},
      {"Zg=a", "", 9, -1},
      {"Z=9v", "", 9, -1},
      {"Zg==Zg==", "f", 9, -1},
      {"Zm8=Zm9v", "fo", 9, -1},
      {"Zm8==", "fo", 9, -1},
      {"===", "", 9, -1},
      {"====", "", 9, -1},
      {"Zm9v=", "foo", 9, -1},
      {"Zm9vZm9v=a", "foo", 5, -2},
      {"Zm9vZg=a", "foo", 3, -1},
      {"Zg==", "", INT32_MIN, -2},
  };
  for (const auto& c : cases) {
    std::string bytes;
    EXPECT_EQ(decode(c.text, c.size, &bytes), c.result) << c.text;
    EXPECT_EQ(bytes, c.bytes) << c.text;
  }
}

TEST(Base64, TakesNullAndSizesAtTheLimits) {
  char out[8];
  EXPECT_EQ(base64_encode(out, 1, nullptr, INT32_MIN), 0);
  EXPECT_EQ(base64_encode(out, INT32_MAX, out, INT32_MAX), -1);
  EXPECT_EQ(base64_encode(out, 8, nullptr, 1), -1);
  EXPECT_EQ(base64_encode(nullptr, 8, out, 1), -1);
  EXPECT_EQ(base64_decode(nullptr, 8, "Zm9v", 4), -1);
  EXPECT_EQ(base64_decode(out, 8, nullptr, 4), -1);
}

}  // namespace
