#include "support/scripted_ioctl.h"

#include <sys/ioctl.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cstdarg>

extern "C" int ioctl(int fd, unsigned long request, ...) noexcept {
  va_list arguments;
  va_start(arguments, request);
  void* const argument = va_arg(arguments, void*);
  va_end(arguments);
  if (const auto& device = test::ScriptedIoctl::present) {
    if (const std::optional<int> answer = device(fd, request, argument)) return *answer;
  }
  return static_cast<int>(syscall(SYS_ioctl, fd, request, argument));
}
