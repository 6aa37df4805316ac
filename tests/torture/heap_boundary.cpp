#include "torture/heap_boundary.h"

#include <cerrno>
#include <cstdlib>

namespace {

size_t count = 0;
bool exhausted = false;

}  // namespace

extern "C" {

void* __libc_malloc(size_t size);
void* __libc_calloc(size_t number, size_t size);
void* __libc_realloc(void* block, size_t size);

void* malloc(size_t size) {
  ++count;
  return exhausted ? nullptr : __libc_malloc(size);
}

void* calloc(size_t number, size_t size) {
  ++count;
  return exhausted ? nullptr : __libc_calloc(number, size);
}

void* realloc(void* block, size_t size) {
  ++count;
  return exhausted ? nullptr : __libc_realloc(block, size);
}

}  // extern "C"

namespace test {

size_t allocations() {
  return count;
}

ExhaustedHeap::ExhaustedHeap() {
  exhausted = true;
}
ExhaustedHeap::~ExhaustedHeap() {
  exhausted = false;
}

}  // namespace test
