#include "support/scripted_ioctl.h"

#include <sys/ioctl.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cstdarg>

namespace {

test::ScriptedIoctl::Device device;

}  // namespace

extern "C" int ioctl(int fd, unsigned long request, ...) noexcept {
  va_list arguments;
  va_start(arguments, request);
  void* const argument = va_arg(arguments, void*);
  va_end(arguments);
  if (device) {
    if (const std::optional<int> answer = device(fd, request, argument)) return *answer;
  }
  return static_cast<int>(syscall(SYS_ioctl, fd, request, argument));
}

namespace test {

ScriptedIoctl::ScriptedIoctl(Device answering) {
  device = std::move(answering);
}
ScriptedIoctl::~ScriptedIoctl() {
  device = nullptr;
}

}  // namespace test
