// A shell command whose output is taken line by line.
#ifndef TAVIK_SHELL_RUN_COMMAND_H
#define TAVIK_SHELL_RUN_COMMAND_H

#include <stdint.h>
#include <stdio.h>
#include <stdlib.h>

#include "items/heap_text.h"
#include "tavik.h"

namespace tavik {

// Calls use(line) for each line, its line feed included. False without memory for a line.
template <typename Use>
bool read_lines(FILE* stream, Use use) {
  size_t size = 4096;
  HeapText line(static_cast<char*>(malloc(size)));
  if (line.get() == nullptr) return false;
  while (getline(line.out(), &size, stream) >= 1) use(line.get());
  return true;
}

// Runs a command, which is freed, and calls use(line) for each line of its output. The result is
// its status; -1 if there is none, or no memory to read what it printed.
template <typename Use>
int32_t run_command(char* command, Use use) {
  FILE* const stream = popen(command, "r");
  free(command);
  if (stream == nullptr) return -1;
  const bool was_read = read_lines(stream, use);
  const int32_t status = pclose(stream);
  return was_read ? status : -1;
}

// The markup that PF_COMMENT and PF_PRE put around the output of a command.
inline void open_output(uint32_t flags) {
  if ((flags & PF_COMMENT) != 0) print_str("<!--");
  if ((flags & PF_PRE) != 0) print_str("<pre>");
}

inline void close_output(uint32_t flags) {
  if ((flags & PF_PRE) != 0) print_str("</pre>");
  if ((flags & PF_COMMENT) != 0) print_str("-->");
}

}  // namespace tavik

#endif
