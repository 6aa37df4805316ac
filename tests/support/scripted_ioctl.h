// A stand-in for the devices that this machine lacks: the test program defines ioctl at the
// boundary of the C library, and the library under test calls it unknowingly.
#pragma once

#include <functional>
#include <optional>

namespace test {

// While it lives, the device sees every ioctl first. Its answer is the call's, with errno set by
// the device for -1; without an answer the call is the kernel's.
class ScriptedIoctl {
 public:
  using Device = std::function<std::optional<int>(int fd, unsigned long request, void* argument)>;

  explicit ScriptedIoctl(Device device) { present = std::move(device); }
  ~ScriptedIoctl() { present = nullptr; }
  ScriptedIoctl& operator=(ScriptedIoctl&&) = delete;

  static inline Device present;
};

}  // namespace test
