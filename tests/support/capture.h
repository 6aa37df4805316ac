// What a piece of code prints to the C library's stdout stream.
#pragma once

#include <cstdio>
#include <string>

#include "support/input_file.h"

namespace test {

template <typename Body>
std::string printed(Body body) {
  fflush(stdout);
  const InputFile file;
  const int saved = dup(STDOUT_FILENO);
  dup2(file.fd(), STDOUT_FILENO);
  body();
  fflush(stdout);
  dup2(saved, STDOUT_FILENO);
  close(saved);
  return file.bytes();
}

}  // namespace test
