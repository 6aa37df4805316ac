#include "torture/heap_boundary.h"

#include <cerrno>
#include <cstdint>
#include <cstdlib>

namespace {

size_t count = 0;
size_t limit = SIZE_MAX;

bool granted() {
  return count++ < limit;
}

}  // namespace

extern "C" {

void* __libc_malloc(size_t size);
void* __libc_calloc(size_t number, size_t size);
void* __libc_realloc(void* block, size_t size);

void* malloc(size_t size) {
  return granted() ? __libc_malloc(size) : nullptr;
}

void* calloc(size_t number, size_t size) {
  return granted() ? __libc_calloc(number, size) : nullptr;
}

void* realloc(void* block, size_t size) {
  return granted() ? __libc_realloc(block, size) : nullptr;
}

}  // extern "C"

namespace test {

size_t allocations() {
  return count;
}

ExhaustedHeap::ExhaustedHeap(size_t granted) {
  limit = count + granted;
}
ExhaustedHeap::~ExhaustedHeap() {
  limit = SIZE_MAX;
}

}  // namespace test
