#include <string.h>

#include "tavik.h"

namespace {

// In the order in which they are printed. Arrays, not pointers: no relocations.
constexpr struct {
  uint32_t flag;
  char text[32];
} kAttributes[] = {
    {PF_CHECKED, " checked"},
    {PF_DISABLED, " disabled"},
    {PF_READONLY, " readonly"},
    {PF_SELECTED, " selected"},
    {PF_DISPLAY_NONE, " style=\"display: none;\""},
    {PF_INVISIBLE, " style=\"visibility: hidden;\""},
};

// By the two autocomplete bits, taken as a number.
constexpr char kAutocomplete[4][24] = {
    "",
    " autocomplete=\"off\"",
    " autocomplete=\"on\"",
    " autocomplete=\"default\"",
};
static_assert(PF_AUTOCOMPLETE_ON == 2 * PF_AUTOCOMPLETE_OFF);

// By the index of html_attr(), which is no flag.
constexpr char kIndexed[][10] = {"", " disabled", " checked", " readonly", " selected"};

}  // namespace

void print_flags(uint32_t flags) {
  for (const auto& attribute : kAttributes) {
    if ((flags & attribute.flag) != 0) print_str(attribute.text);
  }
  print_str(kAutocomplete[flags / PF_AUTOCOMPLETE_OFF % 4]);
}

void print_json_flags(uint32_t flags) {
  if ((flags & PF_JSON_MORE) != 0) print_str(", ");
}

const char* html_attr(uint32_t index) {
  return kIndexed[index < sizeof kIndexed / sizeof kIndexed[0] ? index : 0];
}

uint32_t get_print_flags(uint32_t flags, const char* text) {
  return text != nullptr && strstr(text, "Windows") != nullptr ? flags | PF_CRLF : flags;
}
