#include "request/fatal.h"

#include <stdio.h>
#include <stdlib.h>

namespace tavik {

void fatal(const char* message) {
  puts("Content-Type: text/plain\r\n\r");
  puts(message);
  exit(1);
}

}  // namespace tavik
