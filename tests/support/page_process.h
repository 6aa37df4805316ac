// The suite's own page programs, run the way a web server does.
#pragma once

#include <string>

#include "tavik_harness.h"

namespace test {

using tavik_harness::PageAnswer;
using tavik_harness::PageRequest;

// Runs a page program of the suite, or any other of the machine.
PageAnswer run_page(const std::string& program, PageRequest request);

// The path of one of the test suite's own page programs. TAVIK_TEST_PAGES in the environment names
// the folder of others to take in their place, and TAVIK_TEST_EMULATOR what to run them with.
std::string page_program(const std::string& name);

}  // namespace test
