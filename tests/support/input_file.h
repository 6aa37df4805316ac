// A regular file with some bytes, read from its beginning.
#pragma once

#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <string>

namespace test {

class InputFile {
 public:
  explicit InputFile(const std::string& bytes = "") : fd_(memfd_create("input", MFD_CLOEXEC)) {
    if (pwrite(fd_, bytes.data(), bytes.size(), 0) < 0) abort();
  }
  ~InputFile() { close(fd_); }
  InputFile& operator=(InputFile&&) = delete;

  int fd() const { return fd_; }
  size_t left() const { return size() - static_cast<size_t>(lseek(fd_, 0, SEEK_CUR)); }
  // All that is in it by now.
  std::string bytes() const {
    std::string bytes(size(), '\0');
    return pread(fd_, bytes.data(), bytes.size(), 0) < 0 ? "" : bytes;
  }

 private:
  size_t size() const {
    struct stat status {};
    fstat(fd_, &status);
    return static_cast<size_t>(status.st_size);
  }
  int fd_;
};

}  // namespace test
