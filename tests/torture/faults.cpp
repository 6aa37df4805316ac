#include "torture/faults.h"

#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <malloc.h>
#include <sys/mman.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdarg>
#include <cstdlib>

#include "support/child.h"
#include "support/next_descriptor.h"

namespace {

struct State {
  test::Fault fault;
  bool armed;
  long calls, injected, blocks;
};

State own;
State* state = &own;

template <typename Result, typename... Arguments>
Result real(const char* name, Arguments... arguments) {
  return reinterpret_cast<Result (*)(Arguments...)>(dlsym(RTLD_NEXT, name))(arguments...);
}

template <typename Result, typename... Arguments>
Result call(const char* name, std::initializer_list<int> errors, Result failed,
            Arguments... arguments) {
  return test::struck(errors) ? failed : real<Result>(name, arguments...);
}

// Something is closed even if that fails.
template <typename Handle>
int call_close(const char* name, std::initializer_list<int> errors, Handle handle) {
  const int answer = real<int>(name, handle);
  return test::struck(errors) ? -1 : answer;
}

void* grant(void* block) {
  if (block != nullptr) ++state->blocks;
  return block;
}

bool out_of_memory() {
  return test::struck({ENOMEM});
}

size_t cut(size_t count) {
  return count > 1 && test::struck({test::kShort}) ? count / 2 : count;
}

}  // namespace

extern "C" {

void* __libc_malloc(size_t size);
void* __libc_calloc(size_t number, size_t size);
void* __libc_realloc(void* block, size_t size);
void __libc_free(void* block);

void* malloc(size_t size) {
  return out_of_memory() ? nullptr : grant(__libc_malloc(size));
}
void* calloc(size_t number, size_t size) {
  return out_of_memory() ? nullptr : grant(__libc_calloc(number, size));
}
void* realloc(void* block, size_t size) {
  if (out_of_memory()) return nullptr;
  return block == nullptr ? grant(__libc_malloc(size)) : __libc_realloc(block, size);
}
void free(void* block) {
  if (block != nullptr) --state->blocks;
  __libc_free(block);
}

int open(const char* path, int flags, ...) {
  va_list arguments;
  va_start(arguments, flags);
  const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(arguments, mode_t) : 0;
  va_end(arguments);
  return call("open64", {EIO, ENOSPC, EMFILE}, -1, path, flags, mode);
}
ssize_t read(int fd, void* buffer, size_t count) {
  return call("read", {EIO, EINTR}, ssize_t{-1}, fd, buffer, cut(count));
}
ssize_t write(int fd, const void* buffer, size_t count) {
  return call("write", {EIO, EINTR, ENOSPC}, ssize_t{-1}, fd, buffer, cut(count));
}
int close(int fd) {
  return call_close("close", {EIO, EINTR, ENOSPC}, fd);
}
int stat(const char* path, struct stat* status) noexcept {
  return call("stat64", {EIO}, -1, path, status);
}
int fstat(int fd, struct stat* status) noexcept {
  return call("fstat64", {EIO}, -1, fd, status);
}
int socket(int domain, int type, int protocol) noexcept {
  return call("socket", {EMFILE}, -1, domain, type, protocol);
}
int unlink(const char* path) noexcept {
  return call("unlink", {EIO}, -1, path);
}
FILE* fopen(const char* path, const char* mode) {
  return call("fopen64", {EIO, EMFILE}, static_cast<FILE*>(nullptr), path, mode);
}
size_t fread(void* buffer, size_t size, size_t count, FILE* stream) {
  return call("fread", {EIO}, size_t{0}, buffer, size, cut(count), stream);
}
ssize_t getline(char** line, size_t* size, FILE* stream) {
  return call("getline", {EIO}, ssize_t{-1}, line, size, stream);
}
int fclose(FILE* stream) {
  return call_close("fclose", {EIO}, stream);
}
FILE* popen(const char* command, const char* mode) {
  return call("popen", {EMFILE}, static_cast<FILE*>(nullptr), command, mode);
}
int pclose(FILE* stream) {
  return call_close("pclose", {EIO}, stream);
}
int scandir(const char* path, struct dirent*** list, int (*filter)(const struct dirent*),
            int (*compare)(const struct dirent**, const struct dirent**)) {
  return call("scandir64", {EIO, EMFILE}, -1, path, list, filter, compare);
}

}  // extern "C"

namespace test {

bool struck(std::initializer_list<int> errors) {
  const Fault& fault = state->fault;
  if (!state->armed || std::find(errors.begin(), errors.end(), fault.error) == errors.end()) {
    return false;
  }
  const long behind = state->calls++ - fault.call;
  if (behind < 0 || (behind > 0 && !fault.for_good)) return false;
  ++state->injected;
  if (fault.error > 0) errno = fault.error;
  return true;
}

Damage run_under(const Fault& fault, const std::function<void()>& setup,
                 const std::function<void()>& body) {
  static auto* const shared = static_cast<State*>(
      mmap(nullptr, sizeof(State), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0));
  *shared = {fault, false, 0, 0, 0};
  const ChildAnswer answer = in_child([&] {
    mallopt(M_PERTURB, 0xA5);  // what is freed or fresh reads as garbage
    setup();
    const int before = next_descriptor();
    state = shared;
    state->armed = true;
    body();
    state->armed = false;
    if (next_descriptor() != before) printf(" descriptors left");
    if (state->blocks != 0) printf(" %ld blocks left", state->blocks);
    return 0;
  });
  const std::string end = answer.status > 1 ? " status " + std::to_string(answer.status) : "";
  return {answer.output + end, shared->injected};
}

}  // namespace test
