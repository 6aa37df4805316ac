#include "support/page_process.h"

#include <cstdlib>
#include <iterator>
#include <sstream>
#include <utility>

namespace test {

namespace {

std::string setting(const char* name, const char* preset) {
  const char* const value = getenv(name);
  return value == nullptr ? preset : value;
}

std::string pages() {
  return setting("TAVIK_TEST_PAGES", TEST_PAGES);
}

}  // namespace

PageAnswer run_page(const std::string& program, PageRequest request) {
  if (program.starts_with(pages())) {
    std::istringstream words(setting("TAVIK_TEST_EMULATOR", TEST_EMULATOR));
    request.runner = {std::istream_iterator<std::string>(words), {}};
  }
  return tavik_harness::run_page(program, request);
}

std::string page_program(const std::string& name) {
  return pages() + "/" + name;
}

}  // namespace test
