#include "tavik.h"

int32_t scan_time(const char* text, uint32_t* hours, uint32_t* minutes) {
  if (hours == nullptr || minutes == nullptr) return -1;
  *hours = 1;
  *minutes = 0;
  // Whatever a number too large to convert comes out as, it wraps to some time of the day.
  const int32_t found = sscanf(text, "%u:%u", hours, minutes);  // NOLINT(cert-err34-c)
  if (found <= 0) return found;
  *hours += *minutes / 60;
  *minutes %= 60;
  *hours %= 24;
  return found;
}
