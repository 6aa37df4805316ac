#include "support/failing_heap.h"

#include <cstdlib>

namespace {

bool failing = false;

}  // namespace

#ifndef __SANITIZE_ADDRESS__

extern "C" void* __libc_malloc(size_t size) noexcept;
extern "C" void* __libc_calloc(size_t count, size_t size) noexcept;
extern "C" void* __libc_realloc(void* block, size_t size) noexcept;

extern "C" void* malloc(size_t size) noexcept {
  return failing ? nullptr : __libc_malloc(size);
}

extern "C" void* calloc(size_t count, size_t size) noexcept {
  return failing ? nullptr : __libc_calloc(count, size);
}

extern "C" void* realloc(void* block, size_t size) noexcept {
  return failing ? nullptr : __libc_realloc(block, size);
}

#endif

namespace test {

FailingHeap::FailingHeap() {
  failing = true;
}
FailingHeap::~FailingHeap() {
  failing = false;
}

bool FailingHeap::works() {
  const FailingHeap heap;
  void* volatile block = malloc(1);
  free(block);
  return block == nullptr;
}

}  // namespace test
