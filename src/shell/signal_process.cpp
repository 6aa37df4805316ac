#include <signal.h>

#include "tavik.h"

int32_t signal_process(const char* directory, const char* name, int32_t signal) {
  const int32_t number = read_item_uint(directory, name, nullptr);
  // kill() would take 0 and below for whole groups of processes.
  return number < 1 ? -1 : kill(number, signal);
}
