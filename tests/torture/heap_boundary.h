// The heap at the C library's boundary: this test program defines malloc() and its kin, and counts.
#pragma once

#include <cstddef>

namespace test {

// Allocations, and reallocations, so far in this process.
size_t allocations();

}  // namespace test
