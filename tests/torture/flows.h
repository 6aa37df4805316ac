// What a page does in one go, for the loops that let each of its calls fail.
#pragma once

#include <map>
#include <span>
#include <string>

namespace test {

// The patterns, POSIX extended ones, are of all that the flow prints and of the files that differ
// from first_files() afterwards, each as " path[bytes]", or " path[-]" if it is gone.
struct Flow {
  const char* name;
  void (*run)(const char* dir);
  const char* whole;           // undisturbed
  const char* no_memory;       // with allocations that failed; null where none may be made
  const char* no_io;           // with other calls that failed; null for the same
  const char* type = nullptr;  // a POST's content type and body
  const char* body = "";
};

std::span<const Flow> flows();

// The files that every flow starts from, by their names.
std::map<std::string, std::string> first_files();

}  // namespace test
