#include <stdio.h>
#include <stdlib.h>

#include "items/heap_text.h"
#include "tavik.h"

int32_t rd_file_line(const char* path, int32_t (*callback)(uintptr_t context, char* line),
                     uintptr_t context) {
  if (path == nullptr) return -1;
  FILE* const file = fopen(path, "r");
  if (file == nullptr) return -1;
  size_t size = 4096;
  tavik::HeapText line(static_cast<char*>(malloc(size)));
  if (line.get() == nullptr) {
    fclose(file);
    return -1;
  }
  while (getline(line.out(), &size, file) > 0) {
    if (callback != nullptr) callback(context, line.get());
  }
  return fclose(file);
}
