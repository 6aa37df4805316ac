// Runs a piece of code in a child process, for what would leave its mark on the test program: a
// umask, a namespace, a stream that no longer works.
#pragma once

#include <sys/wait.h>

#include <cstdio>

#include "support/capture.h"

namespace test {

struct ChildAnswer {
  std::string output;  // all that went to standard output and standard error, in order
  int status = -1;     // what body returned; 128 + the signal's number if one ended the child
};

template <typename Body>
ChildAnswer in_child(Body body) {
  fflush(nullptr);
  const InputFile file;
  const pid_t child = fork();
  if (child == 0) {
    dup2(file.fd(), STDOUT_FILENO);
    dup2(file.fd(), STDERR_FILENO);
    setvbuf(stdout, nullptr, _IONBF, 0);
    _exit(body());
  }
  int status = 0;
  waitpid(child, &status, 0);
  return {file.bytes(), WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status)};
}

}  // namespace test
