// A file of operators, beside a reading of each line by its quotes.
#include "harness.h"

namespace {

struct Operator {
  std::string numeric, name;
};

// Both texts empty for a line that is no operator's.
Operator operator_of(const std::string& line) {
  const size_t seam = line.find('"', 1);
  if (line.empty() || line[0] != '"' || seam == std::string::npos) return {};
  if (line.compare(seam, 3, "\",\"") != 0) return {};
  const std::string name = line.substr(seam + 3);
  return {line.substr(1, seam - 1), name.substr(0, name.find('"'))};
}

}  // namespace

int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string bytes = fuzz::Input(data, size).rest();
  EXPECT(read_copn_file(fuzz::File(bytes).path().c_str()) == 0);
  const copn_entry* entry = copn_ptr();
  for (const std::string& line : fuzz::lines_of(bytes)) {
    const Operator expected = operator_of(fuzz::value_of(line));
    if (expected.numeric.empty() || expected.name.empty()) continue;
    EXPECT(entry != nullptr && expected.numeric.substr(0, 6) == entry->numeric);
    EXPECT(expected.name.substr(0, 26) == entry->name);
    entry = entry->next;
  }
  EXPECT(entry == nullptr);
  free_copn();
  return 0;
}
