#include "support/scripted_io.h"

#include <sys/syscall.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>

namespace {

struct Script {
  int fd = -1;
  std::vector<test::Answer> answers;
  size_t calls = 0;
  const char* text = nullptr;  // of the latest answer
} script;

// How many bytes the call may move; negative with errno set if it is to fail.
ssize_t allowed(int fd, size_t count) {
  if (fd != script.fd) return static_cast<ssize_t>(count);
  const size_t call = script.calls++;
  script.text = nullptr;
  if (call >= script.answers.size()) return static_cast<ssize_t>(count);
  const test::Answer& answer = script.answers[call];
  script.text = answer.text;
  errno = answer.error;
  if (answer.error != 0) return -1;
  return std::min(answer.most, static_cast<ssize_t>(count));
}

}  // namespace

extern "C" ssize_t read(int fd, void* buffer, size_t count) {
  const ssize_t length = allowed(fd, count);
  if (length <= 0 && count > 0) return length;
  const char* const text = fd == script.fd ? script.text : nullptr;
  if (text == nullptr) return syscall(SYS_read, fd, buffer, length);
  memcpy(buffer, text, static_cast<size_t>(length));
  return length;
}

extern "C" ssize_t __read_chk(int fd, void* buffer, size_t count, size_t) {
  return read(fd, buffer, count);
}

extern "C" ssize_t write(int fd, const void* buffer, size_t count) {
  const ssize_t length = allowed(fd, count);
  return length <= 0 && count > 0 ? length : syscall(SYS_write, fd, buffer, length);
}

namespace test {

ScriptedIo::ScriptedIo(int fd, std::vector<Answer> answers) {
  script = {fd, std::move(answers), 0, nullptr};
}
ScriptedIo::~ScriptedIo() {
  script = {};
}
int ScriptedIo::calls() const {
  return static_cast<int>(script.calls);
}

}  // namespace test
