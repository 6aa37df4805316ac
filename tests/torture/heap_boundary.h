// The heap at the C library's boundary: this test program defines malloc() and its kin, counts, and
// can let them fail.
#pragma once

#include <cstddef>

namespace test {

// Allocations, and reallocations, so far in this process.
size_t allocations();

// While it lives, every allocation and reallocation of the process fails, but for the first so
// many; freeing works.
class ExhaustedHeap {
 public:
  explicit ExhaustedHeap(size_t granted = 0);
  ~ExhaustedHeap();
  ExhaustedHeap(const ExhaustedHeap&) = delete;
  ExhaustedHeap& operator=(const ExhaustedHeap&) = delete;
};

}  // namespace test
