#include "support/scripted_io.h"

#include <sys/syscall.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>

test::Answer test::ScriptedIo::next(int fd, size_t count) {
  const auto all = static_cast<ssize_t>(count);
  if (fd != fd_ || calls_++ >= answers_.size()) return {0, all};
  Answer answer = answers_[calls_ - 1];
  answer.most = answer.error != 0 ? -1 : std::min(answer.most, all);
  errno = answer.error;
  return answer;
}

extern "C" ssize_t read(int fd, void* buffer, size_t count) {
  const auto [error, length, text] = test::ScriptedIo::next(fd, count);
  if (length <= 0 && count > 0) return length;
  if (text == nullptr) return syscall(SYS_read, fd, buffer, length);
  memcpy(buffer, text, static_cast<size_t>(length));
  return length;
}

extern "C" ssize_t __read_chk(int fd, void* buffer, size_t count, size_t) {
  return read(fd, buffer, count);
}

extern "C" ssize_t write(int fd, const void* buffer, size_t count) {
  const ssize_t length = test::ScriptedIo::next(fd, count).most;
  return length <= 0 && count > 0 ? length : syscall(SYS_write, fd, buffer, length);
}
