#include "items/heap_text.h"
#include "shell/run_command.h"
#include "tavik.h"

using tavik::run_command;

int32_t run_shell(uint32_t flags, const char* format, ...) {
  va_list arguments;
  va_start(arguments, format);
  char* const command = tavik::format_text(format, arguments);
  va_end(arguments);
  if (command == nullptr) return -1;
  if ((flags & PF_QUIET) != 0) return run_command(command, [](const char* /*line*/) {});
  tavik::open_output(flags);
  const int32_t status =
      run_command(command, [flags](const char* line) { print_xstr(line, flags); });
  if (status == -1) print_str("unable to run script!\n");
  tavik::close_output(flags);
  return status;
}
