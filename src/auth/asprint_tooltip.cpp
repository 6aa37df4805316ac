#include <stdio.h>

#include "items/heap_text.h"
#include "tavik.h"

int32_t asprint_tooltip(char** out, const char* path, const char* wrapper, const char* command,
                        const char* options) {
  if (out == nullptr || path == nullptr || command == nullptr || options == nullptr) return -1;
  char* text = nullptr;
  const int32_t length =
      wrapper != nullptr
          ? asprintf(&text, "%s -i \"%s\" -- %s -noout %s", wrapper, path, command, options)
          : asprintf(&text, "%s -in \"%s\" -noout %s", command, path, options);
  if (length < 0) return -1;
  const tavik::HeapText line(text);
  return asprint_title_shell(out, line.get());
}
