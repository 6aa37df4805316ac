#include <stdio.h>

#include "tavik.h"

int32_t print_fsize(int64_t size) {
  const bool small = size <= 1024;
  const long long number = small ? size : size >> 10;
  return printf("%lld&nbsp;%s", number, small ? "Bytes" : "KiB");
}
