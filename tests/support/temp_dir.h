// A directory of real files for one test.
#pragma once

#include <fcntl.h>
#include <sys/stat.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <optional>
#include <sstream>
#include <string>

namespace test {

class TempDir {
 public:
  TempDir() {
    std::string pattern = std::filesystem::temp_directory_path() / "tavik-test-XXXXXX";
    path_ = mkdtemp(pattern.data());
  }
  ~TempDir() { std::filesystem::remove_all(path_); }
  TempDir& operator=(TempDir&&) = delete;

  const char* c_str() const { return path_.c_str(); }
  std::string path(const std::string& name) const { return path_ + "/" + name; }

  void put(const std::string& name, const std::string& bytes) const {
    std::ofstream(path(name), std::ios::binary) << bytes;
  }
  // The file's bytes, or nothing if there is no such file.
  std::optional<std::string> get(const std::string& name) const {
    std::ifstream file(path(name), std::ios::binary);
    if (!file) return std::nullopt;
    std::ostringstream bytes;
    bytes << file.rdbuf();
    return bytes.str();
  }
  // Gives a file an old time stamp, so that touched() sees any later change.
  void age(const std::string& name) const {
    const timespec old[2] = {{1000000000, 0}, {1000000000, 0}};
    utimensat(AT_FDCWD, path(name).c_str(), old, 0);
  }
  bool touched(const std::string& name) const {
    struct stat status {};
    return stat(path(name).c_str(), &status) != 0 || status.st_mtime != 1000000000;
  }

 private:
  std::string path_;
};

}  // namespace test
