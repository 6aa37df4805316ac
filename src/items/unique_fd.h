// A descriptor that is closed at the end of its scope.
#ifndef TAVIK_ITEMS_UNIQUE_FD_H
#define TAVIK_ITEMS_UNIQUE_FD_H

#include <stdint.h>
#include <unistd.h>

namespace tavik {

class UniqueFd {
 public:
  explicit UniqueFd(int32_t fd) : fd_(fd) {}
  ~UniqueFd() {
    if (fd_ >= 0) close(fd_);
  }
  UniqueFd(const UniqueFd&) = delete;
  UniqueFd& operator=(const UniqueFd&) = delete;

  [[nodiscard]] int32_t get() const { return fd_; }
  [[nodiscard]] bool is_open() const { return fd_ >= 0; }

 private:
  int32_t fd_;
};

}  // namespace tavik

#endif
