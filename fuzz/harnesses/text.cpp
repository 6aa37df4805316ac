// UTF-8 and escaping: what is printed for HTML or XML, read back, is the text; of text that is no
// UTF-8 it is what the decoder takes for characters.
#include "harness.h"

namespace {

// The names of U+00A0 to U+00FF in HTML 4, and those of the markup characters.
constexpr char kLatin1[] =
    "nbsp iexcl cent pound curren yen brvbar sect uml copy ordf laquo not shy reg macr deg "
    "plusmn sup2 sup3 acute micro para middot cedil sup1 ordm raquo frac14 frac12 frac34 "
    "iquest Agrave Aacute Acirc Atilde Auml Aring AElig Ccedil Egrave Eacute Ecirc Euml "
    "Igrave Iacute Icirc Iuml ETH Ntilde Ograve Oacute Ocirc Otilde Ouml times Oslash Ugrave "
    "Uacute Ucirc Uuml Yacute THORN szlig agrave aacute acirc atilde auml aring aelig ccedil "
    "egrave eacute ecirc euml igrave iacute icirc iuml eth ntilde ograve oacute ocirc otilde "
    "ouml divide oslash ugrave uacute ucirc uuml yacute thorn yuml";
constexpr char kMarkup[] = "quot amp lt gt apos";

// The place of a word among others; -1 if it is not there.
int32_t place_of(const std::string& word, const char* words) {
  int32_t place = 0;
  for (const char* at = words; at != nullptr; ++place) {
    const char* const end = strchrnul(at, ' ');
    if (word == std::string(at, end)) return place;
    at = *end == '\0' ? nullptr : end + 1;
  }
  return -1;
}

uint32_t character_of(const std::string& reference) {
  if (reference[0] == '#') return fuzz::number_of(reference.substr(1));
  if (const int32_t place = place_of(reference, kMarkup); place >= 0) {
    return static_cast<unsigned char>("\"&<>'"[place]);
  }
  const int32_t place = place_of(reference, kLatin1);
  EXPECT(place >= 0);
  return 0xA0 + static_cast<uint32_t>(place);
}

// What a browser or an XML parser makes of escaped text; XML leaves bytes beyond ASCII alone.
std::vector<uint32_t> read_back(const std::string& escaped, bool is_html = true) {
  std::vector<uint32_t> characters;
  for (size_t at = 0; at < escaped.size(); ++at) {
    const auto byte = static_cast<unsigned char>(escaped[at]);
    EXPECT(strchr("<>\"", byte) == nullptr && (!is_html || byte < 0x7F));
    if (byte != '&') {
      characters.push_back(byte);
      continue;
    }
    const size_t end = escaped.find(';', at);
    EXPECT(end != std::string::npos);
    characters.push_back(character_of(escaped.substr(at + 1, end - at - 1)));
    at = end;
  }
  return characters;
}

// False unless the text is UTF-8 by the letter of RFC 3629, without characters beyond U+FFFF.
bool decode_strictly(const std::string& text, std::vector<uint32_t>* characters) {
  for (size_t at = 0; at < text.size(); ++at) {
    const auto lead = static_cast<unsigned char>(text[at]);
    const int more = lead < 0x80 ? 0 : lead < 0xC2 ? -1 : lead < 0xE0 ? 1 : lead < 0xF0 ? 2 : -1;
    if (more < 0) return false;
    uint32_t character = more == 0 ? lead : lead & (0x3F >> more);
    for (int i = 0; i < more; ++i) {
      if (++at == text.size() || (text[at] & 0xC0) != 0x80) return false;
      character = character << 6 | (text[at] & 0x3F);
    }
    if (more == 2 && (character < 0x800 || (character & 0xF800) == 0xD800)) return false;
    characters->push_back(character);
  }
  return true;
}

std::vector<uint32_t> decode(const char* text) {
  std::vector<uint32_t> characters;
  for (const char* cursor = text; *cursor != '\0';) {
    const char* const before = cursor;
    const uint32_t character = utf8_to_ucs2(&cursor, UINT32_MAX);
    EXPECT(before < cursor && cursor <= before + 3 && character <= 0xFFFF);
    if (character != 0) characters.push_back(character);
  }
  return characters;
}

void encode(const std::vector<uint32_t>& characters, const std::string& expected) {
  std::vector<char> buffer(expected.size());
  char* out = buffer.data();
  for (const uint32_t character : characters) {
    char* const end = buffer.data() + buffer.size();
    char* const next = ucs2_to_utf8(out, static_cast<uint32_t>(end - out), character);
    EXPECT(out < next && next <= end);
    out = next;
  }
  EXPECT(std::string(buffer.data(), out) == expected);
}

// Copies and prints of other kinds say the same.
void compare_forms(const char* text, const std::string& html, const std::vector<uint32_t>& all) {
  char* copy = nullptr;
  const int32_t room = html_asprint_text(&copy, text);
  EXPECT(html == copy && room % 4096 == 0 && html.size() < static_cast<size_t>(room));
  free(copy);
  char* title = nullptr;
  const int32_t length = asprint_title(&title, text);
  EXPECT(length < 0 ? html.empty() : " title=\"" + html + "\"" == title);
  free(title);
  const auto size = static_cast<uint32_t>(strlen(text) * 3);
  std::vector<char> cleaned(size + 2);
  EXPECT(scan_textbox(text, UINT32_MAX, 0, cleaned.data(), size + 1, nullptr) >= 0);
  EXPECT(decode(cleaned.data()) == all);
  xml_data document = {};
  xml_data_txt(&document, text, UINT32_MAX);
  std::vector<uint32_t> bytes;
  for (const char* at = text; *at != '\0'; ++at) bytes.push_back(static_cast<unsigned char>(*at));
  EXPECT(read_back(std::string(document.buffer, document.length), false) == bytes);
  free(document.buffer);
}

}  // namespace

int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  fuzz::Input input(data, size);
  const uint32_t limit = input.byte();
  const std::string text = input.text();
  const fuzz::Exact exact(text);
  std::vector<uint32_t> characters = decode(exact.get());
  uint32_t count = 0;
  const std::string html = fuzz::printed([&] { count = html_print_text(exact.get()); });
  EXPECT(count == html.size() && read_back(html) == characters);
  compare_forms(exact.get(), html, characters);

  uint32_t bytes = 0;
  const uint32_t length = utf8_length(exact.get(), limit, &bytes);
  EXPECT(length <= limit && bytes <= text.size());
  std::vector<uint32_t> strict;
  if (decode_strictly(text, &strict)) {
    EXPECT(characters == strict);
    encode(characters, text);
    EXPECT(length == std::min<size_t>(limit, strict.size()));
    characters.resize(length);
    encode(characters, text.substr(0, bytes));
  }
  const std::string cut =
      fuzz::printed([&] { html_print_text_limit(limit, exact.get(), UINT32_MAX); });
  EXPECT(html.compare(0, cut.size(), cut) == 0);
  fuzz::printed([&] { html_print_text_nl(exact.get()); });
  return 0;
}
