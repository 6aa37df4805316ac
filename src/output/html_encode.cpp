#include "output/html_encode.h"

#include <string.h>

namespace tavik {

namespace {

// The entity names of U+00A0 to U+00FF, in code order. Arrays, not pointers: no relocations.
constexpr char kLatin1[96][8] = {
    "nbsp",   "iexcl",  "cent",   "pound",  "curren", "yen",    "brvbar", "sect",   "uml",
    "copy",   "ordf",   "laquo",  "not",    "shy",    "reg",    "macr",   "deg",    "plusmn",
    "sup2",   "sup3",   "acute",  "micro",  "para",   "middot", "cedil",  "sup1",   "ordm",
    "raquo",  "frac14", "frac12", "frac34", "iquest", "Agrave", "Aacute", "Acirc",  "Atilde",
    "Auml",   "Aring",  "AElig",  "Ccedil", "Egrave", "Eacute", "Ecirc",  "Euml",   "Igrave",
    "Iacute", "Icirc",  "Iuml",   "ETH",    "Ntilde", "Ograve", "Oacute", "Ocirc",  "Otilde",
    "Ouml",   "times",  "Oslash", "Ugrave", "Uacute", "Ucirc",  "Uuml",   "Yacute", "THORN",
    "szlig",  "agrave", "aacute", "acirc",  "atilde", "auml",   "aring",  "aelig",  "ccedil",
    "egrave", "eacute", "ecirc",  "euml",   "igrave", "iacute", "icirc",  "iuml",   "eth",
    "ntilde", "ograve", "oacute", "ocirc",  "otilde", "ouml",   "divide", "oslash", "ugrave",
    "uacute", "ucirc",  "uuml",   "yacute", "thorn",  "yuml",
};

uint32_t put_name(char* out, const char* name) {
  const auto length = static_cast<uint32_t>(strlen(name));
  out[0] = '&';
  memcpy(out + 1, name, length);
  out[length + 1] = ';';
  return length + 2;
}

uint32_t put_number(char* out, uint32_t number) {
  uint32_t divisor = 10;
  while (number / divisor >= 10) divisor *= 10;
  uint32_t length = 0;
  out[length++] = '&';
  out[length++] = '#';
  for (; divisor > 0; divisor /= 10) out[length++] = static_cast<char>('0' + number / divisor % 10);
  out[length++] = ';';
  return length;
}

}  // namespace

uint32_t html_encode_ucs2(char* out, uint32_t character) {
  character &= 0xFFFF;
  switch (character) {
    case 0:
      return 0;
    case '"':
      return put_name(out, "quot");
    case '&':
      return put_name(out, "amp");
    case '<':
      return put_name(out, "lt");
    case '>':
      return put_name(out, "gt");
    default:
      break;
  }
  if (character <= 0x7E) {
    *out = static_cast<char>(character);
    return 1;
  }
  if (character >= 0xA0 && character <= 0xFF) return put_name(out, kLatin1[character - 0xA0]);
  return put_number(out, character);
}

uint32_t plain_run(const char* text, uint32_t limit) {
  uint32_t run = 0;
  for (; run < limit; ++run) {
    const auto c = static_cast<unsigned char>(text[run]);
    if (c == 0 || c >= 0x7F || c == '"' || c == '&' || c == '<' || c == '>') break;
  }
  return run;
}

}  // namespace tavik
