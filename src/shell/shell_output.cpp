#include <stddef.h>
#include <stdlib.h>
#include <string.h>

#include "items/heap_text.h"
#include "shell/run_command.h"
#include "tavik.h"

static_assert(sizeof(void*) != 4 || sizeof(shell_output) == 8);
static_assert(offsetof(shell_output_line, length) == sizeof(void*));
static_assert(offsetof(shell_output_line, text) == sizeof(void*) + 4);

namespace {

// Null for an empty line, which only one that begins with a NUL can be, and without memory.
shell_output_line* make_line(const char* text) {
  const size_t length = strlen(text);
  if (length == 0) return nullptr;
  auto* const line =
      static_cast<shell_output_line*>(malloc(sizeof(shell_output_line) + length + 1));
  if (line == nullptr) return nullptr;
  line->next = nullptr;
  line->length = static_cast<uint32_t>(length);
  memcpy(line->text, text, length + 1);
  return line;
}

// Calls use(text) for each line that is not empty and frees the lines on the way.
template <typename Use>
void consume(shell_output_line* line, Use use) {
  while (line != nullptr) {
    shell_output_line* const next = line->next;
    if (line->length != 0) use(line->text);
    free(line);
    line = next;
  }
}

}  // namespace

int32_t shell_run(shell_output* list, const char* format, ...) {
  va_list arguments;
  va_start(arguments, format);
  char* const command = tavik::format_text(format, arguments);
  va_end(arguments);
  if (command == nullptr) return -1;
  if (list == nullptr) return tavik::run_command(command, [](const char* /*line*/) {});
  shell_output_line** end = &list->first;
  while (*end != nullptr) end = &(*end)->next;
  return tavik::run_command(command, [list, &end](const char* text) {
    shell_output_line* const line = make_line(text);
    if (line == nullptr) return;
    *end = line;
    end = &line->next;
    ++list->count;
  });
}

void shell_print(shell_output* list, uint32_t flags) {
  if (list == nullptr || list->first == nullptr) return;
  const auto print = (flags & PF_RAW) != 0 ? print_str : html_print_text;
  tavik::open_output(flags);
  consume(list->first, print);
  tavik::close_output(flags);
}

void shell_line(shell_output* list, int32_t (*callback)(uintptr_t context, char* text),
                uintptr_t context) {
  if (list == nullptr) return;
  consume(list->first, [callback, context](char* text) {
    if (callback != nullptr) callback(context, text);
  });
}
