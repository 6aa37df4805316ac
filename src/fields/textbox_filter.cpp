#include <string.h>

#include "tavik.h"

namespace {

bool is_in_range(uint32_t character, uint32_t first, uint32_t last) {
  return character >= first && character <= last;
}

bool is_digit(uint32_t character) {
  return is_in_range(character, '0', '9');
}

bool is_letter(uint32_t character, char last = 'z') {
  constexpr uint32_t kLowerCase = 0x20;
  return is_in_range(character | kLowerCase, 'a', static_cast<unsigned char>(last));
}

bool is_one_of(uint32_t character, const char* set) {
  return is_in_range(character, 0x01, 0x7F) && strchr(set, static_cast<int>(character)) != nullptr;
}

}  // namespace

int32_t textbox_filter_alnum(uint32_t /*position*/, uint32_t character) {
  return is_digit(character) || is_letter(character);
}

int32_t textbox_filter_digit(uint32_t /*position*/, uint32_t character) {
  return is_digit(character);
}

int32_t textbox_filter_ascii_printable(uint32_t /*position*/, uint32_t character) {
  return is_in_range(character, 0x21, 0x7E) && !is_one_of(character, "\"'`");
}

int32_t textbox_filter_dns(uint32_t position, uint32_t character) {
  return is_one_of(character, "-.") || textbox_filter_alnum(position, character) != 0;
}

int32_t textbox_filter_dns6(uint32_t position, uint32_t character) {
  return character == ':' || textbox_filter_dns(position, character) != 0;
}

int32_t textbox_filter_cname(uint32_t position, uint32_t character) {
  return is_one_of(character, "_@") || textbox_filter_dns(position, character) != 0;
}

int32_t textbox_filter_asn1(uint32_t position, uint32_t character) {
  return is_one_of(character, " _@*") || textbox_filter_dns(position, character) != 0;
}

int32_t textbox_filter_ip6prefix(uint32_t /*position*/, uint32_t character) {
  return is_digit(character) || is_letter(character, 'f') || is_one_of(character, ":/");
}

int32_t textbox_filter_octet(uint32_t position, uint32_t character) {
  return is_in_range(character, 0x01, 0x7F) && !(position == 0 && character == ' ');
}

int32_t textbox_filter_ppp_username(uint32_t position, uint32_t character) {
  return character == 0x7F || textbox_filter_ascii_printable(position, character) != 0;
}

int32_t textbox_filter_ppp_password(uint32_t position, uint32_t character) {
  if (position == 0 && is_one_of(character, "*?")) return 0;
  return textbox_filter_ppp_username(position, character);
}

int32_t textbox_filter_shell_quoted(uint32_t /*position*/, uint32_t character) {
  return character != 0 && !is_one_of(character, "$\\'\"`");
}

int32_t textbox_filter_smtp(uint32_t position, uint32_t character) {
  if (is_one_of(character, ": *?")) return 0;
  return textbox_filter_shell_quoted(position, character);
}
