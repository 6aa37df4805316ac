// Runs a harness over the files of a corpus: a finding of the past stays mended.
#include <filesystem>
#include <fstream>
#include <iterator>

#include "harness.h"

int main(int count, char** arguments) {
  if (count != 2) return 2;
  int files = 0;
  for (const auto& entry : std::filesystem::directory_iterator(arguments[1])) {
    std::ifstream file(entry.path(), std::ios::binary);
    const std::string bytes(std::istreambuf_iterator<char>(file), {});
    fprintf(stderr, "%s\n", entry.path().c_str());
    LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t*>(bytes.data()), bytes.size());
    ++files;
  }
  fprintf(stderr, "%d files\n", files);
  return files == 0 ? 1 : 0;
}
