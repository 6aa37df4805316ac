// Scripted answers of the system calls read and write, at the boundary of the C library: the test
// program defines both, and the library under test calls them unknowingly.
#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

#include "support/next_descriptor.h"

namespace test {

struct Answer {
  int error = 0;     // not 0: the call fails with this errno
  ssize_t most = 0;  // otherwise at most so many bytes go through; 0 is a plain answer of 0
  const char* text = nullptr;  // a read delivers these bytes in place of the descriptor's
};

// While it lives, calls on descriptor fd get the answers in order; when these are used up, calls
// are real again.
class ScriptedIo {
 public:
  ScriptedIo(int fd, std::vector<Answer> answers) {
    fd_ = fd;
    answers_ = std::move(answers);
    calls_ = 0;
  }
  ~ScriptedIo() { fd_ = -1; }
  ScriptedIo& operator=(ScriptedIo&&) = delete;

  int calls() const { return static_cast<int>(calls_); }
  // What becomes of a call; that of a real one is that all may go through.
  static Answer next(int fd, size_t count);

 private:
  static inline int fd_ = -1;
  static inline size_t calls_;
  static inline std::vector<Answer> answers_;
};

}  // namespace test
