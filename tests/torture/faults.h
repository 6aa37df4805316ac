// Failures at the C library's boundary: this test program defines malloc() and its kin and the
// calls for files and commands. They count, and the one that a fault names fails.
#pragma once

#include <functional>
#include <initializer_list>
#include <string>

namespace test {

// In place of an errno: the transfer moves half of its bytes.
constexpr int kShort = -1;

struct Fault {
  int error;      // an errno; ENOMEM befalls allocations, any other what gives it
  long call;      // the first call to fail of those that can fail so, from 0 on
  bool for_good;  // all behind it fail, too
};

struct Damage {
  std::string told;  // what the body printed; then, if so, that a signal ended it or what it left
  long injected;     // calls that failed
};

// Runs the body in a child process under the fault; setup is spared it.
Damage run_under(const Fault& fault, const std::function<void()>& setup,
                 const std::function<void()>& body);

// Whether the call that asks is to fail: it could with any of these. errno is set.
bool struck(std::initializer_list<int> errors);

}  // namespace test
