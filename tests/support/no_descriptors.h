// While it lives, no descriptor can be opened.
#pragma once

#include <sys/resource.h>

namespace test {

class NoDescriptors {
 public:
  NoDescriptors() {
    getrlimit(RLIMIT_NOFILE, &before_);
    const struct rlimit none { 0, before_.rlim_max };
    setrlimit(RLIMIT_NOFILE, &none);
  }
  ~NoDescriptors() { setrlimit(RLIMIT_NOFILE, &before_); }
  NoDescriptors& operator=(NoDescriptors&&) = delete;

 private:
  struct rlimit before_ {};
};

}  // namespace test
