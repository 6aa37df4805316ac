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
  explicit ScriptedIo(int fd, std::vector<Answer> answers);
  ~ScriptedIo();
  ScriptedIo(const ScriptedIo&) = delete;
  ScriptedIo& operator=(const ScriptedIo&) = delete;

  int calls() const;
};

}  // namespace test
