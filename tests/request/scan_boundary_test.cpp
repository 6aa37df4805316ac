#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>

#include "support/input_file.h"
#include "support/scripted_io.h"
#include "tavik.h"

namespace {

constexpr int32_t kEnd = 77;

struct Scan {
  int32_t result = 0;
  std::string delivered;
  size_t left = 0;
  int pieces = 0;
  bool operator==(const Scan& other) const {
    return result == other.result && delivered == other.delivered && left == other.left;
  }
};

void PrintTo(const Scan& scan, std::ostream* out) {
  *out << scan.result << " left " << scan.left << " " << testing::PrintToString(scan.delivered);
}

int32_t collect(void* argument, const void* data, uint32_t length) {
  auto* const scan = static_cast<Scan*>(argument);
  scan->delivered.append(static_cast<const char*>(data), length);
  ++scan->pieces;
  return -1;
}

// The input arrives in pieces of at most so many bytes.
Scan scanned(const std::string& input, const std::string& boundary, size_t piece = 1 << 20) {
  const test::InputFile file(input);
  const test::ScriptedIo arriving(
      file.fd(), std::vector<test::Answer>(input.size() + 9, {0, static_cast<ssize_t>(piece)}));
  Scan scan;
  scan.result = scan_boundary(file.fd(), boundary.c_str(), kEnd, collect, &scan);
  scan.left = file.left();
  return scan;
}

// The same by a search in the whole input.
Scan searched(const std::string& input, const std::string& boundary) {
  const std::string delimiter = "\r\n--" + boundary;
  const size_t found = input.find(delimiter);
  if (found != std::string::npos) {
    const std::string behind = input.substr(found + delimiter.size());
    const std::string body = input.substr(0, found);
    if (behind.size() < 2) return {2, body, 0};
    if (behind.substr(0, 2) == "\r\n") return {0, body, behind.size() - 2};
    return {kEnd, body, behind.size() - std::min<size_t>(behind.size(), 4)};
  }
  // What could still have become a delimiter stays undelivered. One that has all its bytes and is
  // none is only given up by its first byte.
  for (size_t mark = 0; (mark = input.find("\r\n--", mark)) != std::string::npos; ++mark) {
    const size_t rest = input.size() - mark;
    if (rest <= delimiter.size()) {
      return {2, input.substr(0, mark + (rest == delimiter.size() ? 1 : 0)), 0};
    }
  }
  return {2, input.substr(0, input.size() < 4 ? 0 : input.size() - 3), 0};
}

class Random {
 public:
  uint32_t below(uint32_t limit) {
    state_ = state_ * 1664525 + 1013904223;
    return (state_ >> 8) % limit;
  }
  std::string text(size_t length) {
    std::string text(length, '\0');
    for (char& c : text) c = "\r\n\r\n--ab"[below(8)];
    return text;
  }

 private:
  uint32_t state_ = 1;
};

TEST(ScanBoundary, StopsBehindTheDelimitersLine) {
  const struct {
    const char *input, *boundary;
    Scan expected;
  } cases[] = {{"x\r\n--B\r\nnext", "B", {0, "x", 4}},
               {"x\r\n--B--\r\nepilogue", "B", {kEnd, "x", 8}},
               {"x\r\n--Bxy12345", "B", {kEnd, "x", 3}},
               {"\r\n--B\r\n", "B", {0, "", 0}},
               {"a\r\n\r\n--B\r\n", "B", {0, "a\r\n", 0}},
               {"a\r\n--C\r\n--B--\r\n", "B", {kEnd, "a\r\n--C", 0}},
               {"a\r\n--B\r\n", "B\rC", {0, "a", 0}},
               {"--B\r\nx\r\n--B\r\n", "B", {0, "--B\r\nx", 0}},
               {"x\r\n--B", "B", {2, "x", 0}},
               {"x\r\n--B\r", "B", {2, "x", 0}},
               {"x\r\n--B", "BCD", {2, "x", 0}},
               {"abcdef", "B", {2, "abc", 0}},
               {"ab", "B", {2, "", 0}},
               {"", "B", {2, "", 0}}};
  for (const auto& c : cases) {
    for (const size_t piece : {1, 2, 3, 5, 4096}) {
      const Scan scan = scanned(c.input, c.boundary, piece);
      EXPECT_EQ(scan, c.expected) << c.input;
      const bool nothing = scan.result == 2 && scan.delivered.empty();
      EXPECT_EQ(scan.pieces == 0, nothing) << "an empty body is a piece";
    }
  }
}

TEST(ScanBoundary, FindsWhatAWholeSearchFinds) {
  Random random;
  for (const char* boundary : {"a", "-", "--", "ab", "a-b", "-\n--", "bbbbbbbbbb"}) {
    for (int round = 0; round < 60; ++round) {
      const char* const behind[] = {"\r\n", "--\r\n", "ab", "\r"};
      const std::string input = random.text(random.below(40)) + "\r\n--" + boundary +
                                behind[random.below(4)] + random.text(random.below(9));
      for (size_t cut = 0; cut <= input.size(); ++cut) {
        const std::string arrived = input.substr(0, cut);
        const Scan scan = scanned(arrived, boundary, 1 + random.below(9));
        ASSERT_EQ(scan, searched(arrived, boundary)) << testing::PrintToString(arrived);
      }
    }
  }
}

TEST(ScanBoundary, FindsTheDelimiterAtEveryPlaceInTheBuffer) {
  Random random;
  for (const size_t length : {1, 40, 510, 1018, 1019, 1020}) {
    const std::string boundary(length, 'b');
    std::string almost = boundary;
    almost.back() = 'c';
    const size_t step = length == 40 ? 1 : 61;
    for (size_t ahead = 0; ahead < 2100; ahead += step) {
      const std::string input = random.text(ahead) + "\r\n--" + almost + random.text(3) + "\r\n--" +
                                boundary + "\r\n" + random.text(5);
      ASSERT_EQ(scanned(input, boundary, 1000), searched(input, boundary)) << ahead;
    }
  }
}

TEST(ScanBoundary, PassesByWhatNoBoundaryDelimits) {
  for (const std::string& boundary :
       {std::string(), std::string("\rB"), std::string(1021, 'b'), std::string(8000, 'b')}) {
    const std::string input = "x\r\n--" + boundary + "\r\n";
    const Scan scan = scanned(input, boundary);
    EXPECT_EQ(scan, (Scan{2, "", input.size()}));
    EXPECT_EQ(scan.pieces, 0);
  }
  EXPECT_EQ(scan_boundary(-1, nullptr, kEnd, collect, nullptr), 2);
}

TEST(ScanBoundary, ReadsOncePerBoundaryLength) {
  const std::string boundary(40, '-');
  const test::InputFile file(std::string(40 * 1000, 'x') + "\r\n--" + boundary + "--\r\n");
  const test::ScriptedIo counting(file.fd(), {});
  EXPECT_EQ(scan_boundary(file.fd(), boundary.c_str(), kEnd, nullptr, nullptr), kEnd);
  EXPECT_LE(counting.calls(), 1005);
}

}  // namespace
