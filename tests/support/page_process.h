// Runs a page program the way a web server does: a CGI environment, the body on descriptor 0, the
// answer on descriptor 1.
#pragma once

#include <map>
#include <string>
#include <vector>

namespace test {

struct PageRequest {
  std::map<std::string, std::string> environment;
  std::string body;
  // The body comes through a pipe in pieces of this many bytes, or from a regular file for 0.
  size_t piece = 4096;
  std::vector<std::string> arguments;
};

struct PageAnswer {
  std::string output;
  int status = -1;    // the exit status; 128 + the signal's number if one ended the process
  size_t unread = 0;  // bytes of a body in a regular file that the page left unread
};

PageAnswer run_page(const std::string& program, const PageRequest& request);

// The path of one of the test suite's own page programs. TAVIK_TEST_PAGES in the environment names
// the folder of others to take in their place, and TAVIK_TEST_EMULATOR what to run them with.
std::string page_program(const std::string& name);

}  // namespace test
