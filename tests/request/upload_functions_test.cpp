#include <gtest/gtest.h>

#include <cerrno>
#include <optional>

#include "support/capture.h"
#include "support/input_file.h"
#include "support/rows.h"
#include "support/scripted_io.h"
#include "tavik.h"

namespace {

using std::string;

constexpr int32_t kEnd = 77;

int32_t collect(void* argument, const void* data, uint32_t length) {
  auto& delivered = *static_cast<std::optional<string>*>(argument);
  delivered = delivered.value_or("") + string(static_cast<const char*>(data), length);
  return -1;
}

// Its result, what was delivered, if anything was, and how much of the input was left unread. The
// input arrives in pieces of at most so many bytes.
string scanned(const string& input, const string& boundary, ssize_t piece) {
  const test::InputFile file(input);
  const test::ScriptedIo arriving(file.fd(), {input.size() + 9, {0, piece}});
  std::optional<string> delivered;
  const int32_t result = scan_boundary(file.fd(), boundary.c_str(), kEnd, collect, &delivered);
  return test::joined(result, delivered ? "[" + *delivered + "]" : "nothing", file.left());
}

TEST(ScanBoundary, StopsBehindTheDelimitersLine) {
  for (const ssize_t piece : {1, 2, 3, 5, 4096}) {
    // What could still have become a delimiter stays undelivered. One that has all its bytes and
    // is none is only given up by its first byte.
    test::expect_rows(
        "x\r\n--B\r\nnext=0 [x] 4|x\r\n--B--\r\nepilogue=77 [x] 8|\r\n--B\r\n=0 [] 0|"
        "a\r\n--C\r\n--B--=77 [a\r\n--C] 0|x\r\n--B=2 [x] 0|x\r\n--B\r=2 [x] 0|"
        "x\r\n--C=2 [x\r] 0|abcdef=2 [abc] 0|abc=2 nothing 0|=2 nothing 0",
        [piece](const char* input) { return scanned(input, "B", piece); });
    EXPECT_EQ(scanned("x\r\n--B", "BCD", piece), "2 [x] 0");
    EXPECT_EQ(scanned("a\r\n--B\r\n", "B\rC", piece), "0 [a] 0");
  }
}

TEST(ScanBoundary, ReadsNothingForABoundaryThatDelimitsNothing) {
  for (const string& boundary : {string(), string("\rB"), string(1021, 'b'), string(8000, 'b')}) {
    const string input = "x\r\n--" + boundary + "\r\n";
    EXPECT_EQ(scanned(input, boundary, 4096), test::joined(2, "nothing", input.size()));
  }
  EXPECT_EQ(scan_boundary(-1, nullptr, kEnd, collect, nullptr), 2);
}

TEST(ScanBoundary, ReadsOnceForEachLengthOfTheBoundary) {
  const string boundary(40, '-');
  const test::InputFile file(string(40 * 1000, 'x') + "\r\n--" + boundary + "--\r\n");
  const test::ScriptedIo counting(file.fd(), {});
  EXPECT_EQ(scan_boundary(file.fd(), boundary.c_str(), kEnd, nullptr, nullptr), kEnd);
  EXPECT_LE(counting.calls(), 1005);
}

TEST(FullLineReadFd, ReadsNoByteBehindTheLineAndTellsAReadError) {
  const string longest(1022, 'x');
  const std::tuple<string, uint32_t, int32_t, size_t> cases[] = {
      {"abc\r\ndef", 1024, 3, 3},
      {longest + "\r\n\r\n", 1024, 1022, 2},
      {longest + "x\r\n" + longest + "\r\n", 1024, 0, 0},
      {"abc\r\n", 1, -1, 5}};
  for (const auto& [input, size, length, left] : cases) {
    for (const ssize_t piece : {1, 4096}) {
      const test::InputFile file(input);
      const test::ScriptedIo arriving(file.fd(), {input.size(), {0, piece}});
      // The byte behind the first one that arrives is not the line's.
      string buffer(size, '\n');
      EXPECT_EQ(full_line_read_fd(file.fd(), buffer.data(), size), length);
      EXPECT_EQ(file.left(), left);
      EXPECT_TRUE(length < 1 || input.starts_with(buffer.c_str() + string("\r\n")));
    }
  }
  for (const size_t good : {0, 1, 4, 6}) {
    const test::InputFile file("abcdefgh\r\n");
    std::vector<test::Answer> answers(good, {0, 1});
    answers.push_back({EIO, 0});
    const test::ScriptedIo failing(file.fd(), answers);
    char buffer[5];
    EXPECT_EQ(full_line_read_fd(file.fd(), buffer, sizeof buffer), -1) << good;
  }
}

TEST(MpartSinks, WriteAllTheyGet) {
  const test::InputFile file("");
  // A failed write is no failure of the sink's.
  for (int32_t fd : {0, -1, 9999, file.fd()}) EXPECT_EQ(mpart_write_fd(&fd, "a\0bc", 3), 0);
  EXPECT_EQ(file.bytes(), string("a\0b", 3));
  EXPECT_EQ(test::printed([] { EXPECT_EQ(mpart_fwrite(stdout, "a\0bc", 3), 0); }), file.bytes());
  EXPECT_EQ(mpart_write_fd(nullptr, "a", 1) + mpart_fwrite(nullptr, "a", 1), -2);
}

TEST(ValidFilename, IsTheLastComponent) {
  test::expect_rows("C:\\dir\\a.txt=a.txt|/x\\y=y|a\\b/c=c|a/=|..=..", valid_filename);
  EXPECT_EQ(valid_filename(nullptr), nullptr);
}

}  // namespace
