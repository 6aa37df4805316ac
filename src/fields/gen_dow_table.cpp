#include <string.h>

#include "fields/number_text.h"
#include "tavik.h"

namespace {

constexpr char kDayNames[7][4] = {"sun", "mon", "tue", "wed", "thu", "fri", "sat"};

static_assert(sizeof(void*) != 4 || sizeof(dow_entry) == 12);

}  // namespace

void gen_dow_table(dow_entry* table, uint32_t capacity, const char* list) {
  if (table == nullptr || list == nullptr) return;
  for (; capacity > 0 && tavik::is_digit(*list); --capacity, ++table) {
    const auto day = static_cast<uint32_t>(*list - '0');
    if (day < 7) *table = {day, kDayNames[day], list + 1};
    list += strlen(list) + 1;
  }
}
