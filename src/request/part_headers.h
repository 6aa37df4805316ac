// The header lines of one part of a multipart body, as records.
#ifndef TAVIK_REQUEST_PART_HEADERS_H
#define TAVIK_REQUEST_PART_HEADERS_H

#include "tavik.h"

namespace tavik {

class PartHeaders {
 public:
  // The record of the boundary is the first one of every part.
  explicit PartHeaders(const cgi_attr& boundary) : records_{boundary} {}
  ~PartHeaders();
  PartHeaders(const PartHeaders&) = delete;
  PartHeaders& operator=(const PartHeaders&) = delete;

  // Reads lines up to the empty one, the end of the input, or the last that can be held. What
  // fails ends the process.
  void read(int32_t fd);

  cgi_attr* records() { return records_; }
  [[nodiscard]] int32_t count() const { return count_; }

 private:
  static constexpr int32_t kRecords = 6;
  static constexpr int32_t kLines = 5;
  static constexpr uint32_t kLineSize = 1024;

  bool add_header(char* line);
  char* add_attribute(cgi_attr* header, char* text);

  cgi_attr records_[kRecords];
  int32_t count_ = 1;
  char* lines_[kLines] = {};  // the texts of the records
  int32_t held_ = 0;
};

}  // namespace tavik

#endif
