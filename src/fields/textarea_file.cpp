#include <fcntl.h>
#include <string.h>

#include "items/heap_text.h"
#include "items/unique_fd.h"
#include "tavik.h"

using tavik::HeapText;
using tavik::UniqueFd;

namespace {

// Room for so many characters and a terminator; null if there is none to be had.
char* allocate_characters(uint32_t maximum) {
  const uint64_t size = 3 * uint64_t{maximum} + 1;
  return size > INT32_MAX ? nullptr : static_cast<char*>(malloc(static_cast<size_t>(size)));
}

// Reads as many bytes as so many characters can take. A failed read gives the empty text.
void read_characters(int32_t fd, char* text, uint32_t maximum) {
  const int32_t got = full_read_fd(fd, text, static_cast<int32_t>(3 * maximum));
  text[got < 0 ? 0 : got] = '\0';
}

// The bytes that the text's first maximum characters take.
uint32_t cut_length(const char* text, uint32_t maximum) {
  uint32_t bytes = 0;
  utf8_length(text, maximum, &bytes);
  return bytes;
}

// Replaces the file's bytes; nothing is added to them.
int32_t write_file(const char* directory, const char* name, const char* text, uint32_t bytes) {
  const UniqueFd file(open_path_name(directory, name, O_WRONLY | O_TRUNC, 0));
  if (!file.is_open()) return file.get();
  const int32_t written = full_write_fd(file.get(), text, static_cast<int32_t>(bytes));
  return written < 0 ? written : written + 1;
}

}  // namespace

int32_t get_textarea_file(char** text, const char* directory, const char* name, uint32_t maximum) {
  if (text == nullptr || directory == nullptr || name == nullptr) return -1;
  char* const buffer = allocate_characters(maximum);
  if (buffer == nullptr) return -1;
  *text = buffer;
  buffer[0] = '\0';
  const UniqueFd file(open_path_name(directory, name, O_RDONLY, 0));
  if (!file.is_open()) return 0;
  read_characters(file.get(), buffer, maximum);
  buffer[cut_length(buffer, maximum)] = '\0';
  return static_cast<int32_t>(3 * maximum + 1);
}

int32_t update_textarea_file(const char* directory, const char* name, const char* text,
                             uint32_t maximum) {
  if (text == nullptr) return -1;
  HeapText stored;
  {
    const UniqueFd file(open_path_name(directory, name, O_RDONLY, 0));
    if (!file.is_open()) return file.get();
    *stored.out() = allocate_characters(maximum);
    if (stored.get() == nullptr) return -2;
    read_characters(file.get(), stored.get(), maximum);
  }
  // The whole text is compared: one that was cut for the file is written again each time.
  if (strcmp(text, stored.get()) == 0) return 0;
  return write_file(directory, name, text, cut_length(text, maximum));
}
