// The suite's own page programs, run the way a web server does.
#pragma once

#include <cstdlib>
#include <sstream>
#include <string>

#include "tavik_harness.h"

namespace test {

using tavik_harness::PageAnswer;
using tavik_harness::PageRequest;

inline std::string setting(const char* name, const char* preset) {
  const char* const value = getenv(name);
  return value == nullptr ? preset : value;
}

// The path of one of the test suite's own page programs. TAVIK_TEST_PAGES in the environment names
// the folder of others to take in their place, and TAVIK_TEST_EMULATOR what to run them with.
inline std::string page_program(const std::string& name) {
  return setting("TAVIK_TEST_PAGES", TEST_PAGES) + "/" + name;
}

// Runs a page program of the suite, or any other of the machine.
inline PageAnswer run_page(const std::string& program, PageRequest request) {
  std::istringstream words(setting("TAVIK_TEST_EMULATOR", TEST_EMULATOR));
  const bool is_own = program.starts_with(page_program(""));
  for (std::string word; is_own && words >> word;) request.runner.push_back(word);
  return tavik_harness::run_page(program, request);
}

}  // namespace test
