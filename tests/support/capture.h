// What a piece of code prints to the C library's stdout stream.
#pragma once

#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

#include <cstdio>
#include <string>

namespace test {

// Takes all that was written to a memory file, and closes it.
inline std::string take_text(int file) {
  std::string text(static_cast<size_t>(lseek(file, 0, SEEK_END)), '\0');
  const ssize_t got = pread(file, text.data(), text.size(), 0);
  close(file);
  text.resize(got < 0 ? 0 : static_cast<size_t>(got));
  return text;
}

template <typename Body>
std::string printed(Body body) {
  fflush(stdout);
  const int saved = dup(STDOUT_FILENO);
  const int file = memfd_create("stdout", 0);
  dup2(file, STDOUT_FILENO);
  body();
  fflush(stdout);
  dup2(saved, STDOUT_FILENO);
  close(saved);
  return take_text(file);
}

}  // namespace test
