// An exhausted heap: the test program defines malloc, calloc and realloc at the boundary of the
// C library, and the library under test calls them unknowingly.
#pragma once

namespace test {

// While it lives, every allocation of the process fails; freeing works.
class FailingHeap {
 public:
  FailingHeap();
  ~FailingHeap();
  FailingHeap(const FailingHeap&) = delete;
  FailingHeap& operator=(const FailingHeap&) = delete;

  // False under checkers that bring an allocator of their own: there is nothing to test then.
  static bool works();
};

}  // namespace test
