#include "tavik.h"

namespace {

constexpr uint32_t kEveryDay = 0x7F;
constexpr uint32_t kLeastSize = 15;

}  // namespace

const char* cron_weekdays(char* buffer, uint32_t size, uint32_t mask) {
  if (buffer == nullptr || size < kLeastSize) return "*";
  char* end = buffer;
  if ((mask & kEveryDay) == kEveryDay) {
    *end++ = '*';
  } else {
    for (uint32_t day = 0; day < 7; ++day) {
      if ((mask >> day & 1) == 0) continue;
      if (end != buffer) *end++ = ',';
      *end++ = static_cast<char>('0' + day);
    }
  }
  *end = '\0';
  return buffer;
}
