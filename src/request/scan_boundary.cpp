#include <string.h>

#include "tavik.h"

namespace {

// What scan_boundary() answers itself; the third answer is the caller's.
constexpr int32_t kPartFollows = 0;
constexpr int32_t kInputEnded = 2;

constexpr int32_t kLongestBoundary = 1020;
constexpr char kMark[] = {'\r', '\n', '-', '-'};
constexpr int32_t kMarkLength = sizeof kMark;
constexpr int32_t kLineEndLength = 2;

// A body on its way through a window that slides over it. Nothing is ever read that could lie
// behind the delimiter: what is asked for is at most the rest of one that might have begun.
class BodyScan {
 public:
  BodyScan(int32_t fd, const char* boundary, int32_t length, mpart_sink sink, void* argument)
      : fd_(fd), boundary_(boundary), length_(length), sink_(sink), argument_(argument) {}

  // Delivers the body; false if the input ended before the delimiter.
  bool deliver_body() {
    int32_t wanted = length_ + kMarkLength;
    do {
      if (!fill(wanted)) {
        if (safe_ != 0) deliver();
        return false;
      }
      wanted = look();
      if (wanted > 0 && safe_ >= kLongestBoundary - length_) slide();
    } while (wanted > 0);
    deliver();
    return true;
  }

  // Reads what ends the delimiter's line.
  int32_t finish(uint32_t end_code) {
    char end[kLineEndLength];
    if (full_read_fd(fd_, end, kLineEndLength) < kLineEndLength) return kInputEnded;
    if (end[0] == '\r' && end[1] == '\n') return kPartFollows;
    full_read_fd(fd_, end, kLineEndLength);
    return static_cast<int32_t>(end_code);
  }

 private:
  bool fill(int32_t wanted) {
    const int32_t got = full_read_fd(fd_, window_ + size_, wanted);
    if (got > 0) size_ += got;
    return got > 0;
  }

  // Moves safe_ on, to the delimiter if it is there. The result is the number of bytes that are
  // missing to tell more, 0 for the whole delimiter.
  int32_t look() {
    const int32_t ahead = size_ - safe_;
    const char* const mark = static_cast<const char*>(
        memmem(window_ + safe_, static_cast<size_t>(ahead), kMark, sizeof kMark));
    if (mark == nullptr) {
      if (ahead >= kMarkLength) safe_ = size_ - (kMarkLength - 1);
      return length_;
    }
    safe_ = static_cast<int32_t>(mark - window_);
    const int32_t missing = safe_ + kMarkLength + length_ - size_;
    if (missing > 0) return missing;
    if (memcmp(mark + kMarkLength, boundary_, static_cast<size_t>(length_)) == 0) return 0;
    ++safe_;
    return 1;
  }

  void deliver() const {
    if (sink_ != nullptr) sink_(argument_, window_, static_cast<uint32_t>(safe_));
  }

  void slide() {
    deliver();
    size_ -= safe_;
    memmove(window_, window_ + safe_, static_cast<size_t>(size_));
    safe_ = 0;
  }

  int32_t fd_;
  const char* boundary_;
  int32_t length_;
  mpart_sink sink_;
  void* argument_;
  int32_t safe_ = 0;  // so many bytes of the window lie in front of any delimiter
  int32_t size_ = 0;
  char window_[kLongestBoundary + kMarkLength];
};

}  // namespace

int32_t scan_boundary(int32_t fd, const char* boundary, uint32_t end_code, mpart_sink sink,
                      void* argument) {
  const size_t length = boundary == nullptr ? 0 : strcspn(boundary, "\r");
  // Nothing can be delimited by it, so that there is no body to read.
  if (length == 0 || length > kLongestBoundary) return kInputEnded;
  BodyScan scan(fd, boundary, static_cast<int32_t>(length), sink, argument);
  return scan.deliver_body() ? scan.finish(end_code) : kInputEnded;
}
