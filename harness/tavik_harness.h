// Runs a page program the way a web server does, for tests of pages: a CGI environment, the body on
// descriptor 0, the answer on descriptor 1. The page sees nothing of the caller's environment. It
// needs the C++ runtime, a page itself does not; there is no test framework in it.
#ifndef TAVIK_HARNESS_H
#define TAVIK_HARNESS_H

#include <cstddef>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace tavik_harness {

struct PageRequest {
  std::map<std::string, std::string> environment;
  std::string body;
  // The body comes through a pipe in pieces of this many bytes, or from a regular file for 0.
  size_t piece = 4096;
  std::vector<std::string> arguments;
  // What runs the program, such as an emulator and its options.
  std::vector<std::string> runner{};
};

struct PageAnswer {
  std::string output;  // the headers, the empty line, the page
  int status = -1;     // the exit status; 128 + the signal's number if one ended the process
  size_t unread = 0;   // bytes of a body in a regular file that the page left unread
};

// Waits until the page has ended. One that cannot be started has the status 127.
PageAnswer run_page(const std::string& program, const PageRequest& request);

// A GET; the query is URL-encoded already.
PageRequest get_request(const std::string& query = "");

// A POST as a browser sends a form, in the order of its controls.
PageRequest form_request(const std::vector<std::pair<std::string, std::string>>& fields);

// A POST as a browser sends a form that has one file chosen and nothing else.
PageRequest upload_request(const std::string& field, const std::string& filename,
                           const std::string& content);

}  // namespace tavik_harness

#endif
