#include <gtest/gtest.h>

#include "tavik.h"

namespace {

TEST(Base64, GoesBothWaysWithinTheRoomThereIs) {
  const std::tuple<std::string, int32_t, int32_t, const char*> cases[] = {
      {"Zm9v\nYg==", 4, 4, "foob##"},
      {"Zm9vYg==", 3, -2, "foo###"},
      {"Zm9vZm9v=a", 5, -2, "foo###"},  // the first fault counts
      {{"Zm\0 9\t-v_", 9}, 6, 3, "foo###"},
      {"Zm9v=", 6, -1, "foo###"},
      {"", 6, 0, "######"}};
  for (const auto& [text, room, result, bytes] : cases) {
    std::string out(6, '#');
    const auto length = static_cast<int32_t>(text.size());
    EXPECT_EQ(base64_decode(out.data(), room, text.data(), length), result) << text;
    EXPECT_EQ(out, bytes);
  }
  char out[] = "untouched";
  EXPECT_EQ(base64_encode(out, INT32_MAX, out, INT32_MAX), -1);
  EXPECT_EQ(base64_encode(out, 8, "foob", 4), -1);
  EXPECT_EQ(base64_encode(out, 9, nullptr, 4), -1);
  EXPECT_EQ(base64_decode(out, 9, nullptr, 4), -1);
  EXPECT_EQ(out[0], 'u');
  EXPECT_EQ(base64_encode(out, 9, "foob", 4), 8);
  EXPECT_STREQ(out, "Zm9vYg==");
}

}  // namespace
