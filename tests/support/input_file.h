// A regular file with some bytes, read from its beginning.
#pragma once

#include <sys/mman.h>
#include <unistd.h>

#include <string>

namespace test {

class InputFile {
 public:
  explicit InputFile(const std::string& bytes)
      : fd_(memfd_create("input", MFD_CLOEXEC)),
        size_(pwrite(fd_, bytes.data(), bytes.size(), 0)) {}
  ~InputFile() { close(fd_); }
  InputFile(const InputFile&) = delete;
  InputFile& operator=(const InputFile&) = delete;

  int fd() const { return fd_; }
  size_t left() const { return static_cast<size_t>(size_ - lseek(fd_, 0, SEEK_CUR)); }

 private:
  int fd_;
  ssize_t size_;
};

}  // namespace test
