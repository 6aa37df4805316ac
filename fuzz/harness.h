// What the harnesses have in common. A harness takes one input apart, calls the library, and aborts
// where the results depart from a second opinion; the sanitizers watch the rest.
#ifndef TAVIK_FUZZ_HARNESS_H
#define TAVIK_FUZZ_HARNESS_H

#include <fcntl.h>
#include <stdint.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "tavik.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);

// Unlike assert() in every build.
#define EXPECT(condition) \
  ((condition) ? static_cast<void>(0) : fuzz::fail(#condition, __FILE__, __LINE__))

namespace fuzz {

[[noreturn]] inline void fail(const char* condition, const char* file, int line) {
  fprintf(stderr, "%s:%d: does not hold: %s\n", file, line, condition);
  abort();
}

// Takes values off the front of an input; behind its end all are 0 or empty.
class Input {
 public:
  Input(const uint8_t* data, size_t size) : rest_(reinterpret_cast<const char*>(data), size) {}

  uint8_t byte() {
    if (rest_.empty()) return 0;
    const char first = rest_.front();
    rest_.remove_prefix(1);
    return static_cast<uint8_t>(first);
  }
  uint32_t word() {
    uint32_t value = 0;
    for (int i = 0; i < 4; ++i) value = value << 8 | byte();
    return value;
  }
  std::string line() {
    const std::string_view found = rest_.substr(0, rest_.find('\n'));
    rest_.remove_prefix(found.size() < rest_.size() ? found.size() + 1 : found.size());
    return std::string(found);
  }
  std::string rest() { return std::string(std::exchange(rest_, {})); }
  // As C reads it: up to the first NUL.
  std::string text() { return rest().c_str(); }
  bool is_empty() const { return rest_.empty(); }

 private:
  std::string_view rest_;
};

// A heap block of exactly the text and its terminator, so that a byte too far is seen.
class Exact {
 public:
  explicit Exact(const std::string& text) : text_(strdup(text.c_str())) {}
  ~Exact() { free(text_); }
  Exact(const Exact&) = delete;
  Exact& operator=(const Exact&) = delete;

  char* get() const { return text_; }

 private:
  char* text_;
};

// The bytes that a piece of code prints.
template <typename Body>
std::string printed(Body body) {
  char* text = nullptr;
  size_t size = 0;
  FILE* const real = std::exchange(stdout, open_memstream(&text, &size));
  body();
  fclose(std::exchange(stdout, real));
  std::string bytes(text, size);
  free(text);
  return bytes;
}

// A file of these bytes. It is the item name() in directory().
class File {
 public:
  explicit File(std::string_view bytes) : fd_(memfd_create("input", MFD_CLOEXEC)) {
    EXPECT(pwrite(fd_, bytes.data(), bytes.size(), 0) == static_cast<ssize_t>(bytes.size()));
  }
  ~File() { close(fd_); }
  File(const File&) = delete;
  File& operator=(const File&) = delete;

  int fd() const { return fd_; }
  size_t offset() const { return static_cast<size_t>(lseek(fd_, 0, SEEK_CUR)); }
  static const char* directory() { return "/proc/self/fd"; }
  std::string name() const { return std::to_string(fd_); }
  std::string path() const { return std::string(directory()) + "/" + name(); }

 private:
  int fd_;
};

// The part of a line or an item ahead of its first control character.
inline std::string value_of(std::string_view text) {
  size_t length = 0;
  while (length < text.size() && text[length] != 0x7F &&
         static_cast<unsigned char>(text[length]) >= ' ') {
    ++length;
  }
  return std::string(text.substr(0, length));
}

// The lines of a file as C reads them, each up to its first NUL, line ends taken off.
inline std::vector<std::string> lines_of(const std::string& bytes) {
  std::vector<std::string> lines;
  for (size_t at = 0; at < bytes.size();) {
    const size_t end = std::min(bytes.find('\n', at), bytes.size());
    lines.emplace_back(bytes.substr(at, end - at).c_str());
    at = end + 1;
  }
  return lines;
}

// Decimal digits modulo 2^32.
inline uint32_t number_of(std::string_view digits) {
  uint64_t value = 0;
  for (const char digit : digits) {
    if (digit < '0' || digit > '9') break;
    value = (value * 10 + static_cast<uint64_t>(digit - '0')) % (uint64_t{1} << 32);
  }
  return static_cast<uint32_t>(value);
}

}  // namespace fuzz

#endif
