// Formats built out of the documented conversions, one at a time between two literal texts. A
// format is the page author's: only the arguments are an outsider's.
#include "harness.h"

namespace {

std::string escaped(uint32_t limit, const std::string& text) {
  return fuzz::printed([&] { html_print_text_limit(limit, text.c_str(), UINT32_MAX); });
}

// A literal piece of a format, and what it prints.
struct Literal {
  std::string format, output;
};

Literal literal(bool raw, std::string text) {
  text.erase(std::remove(text.begin(), text.end(), '%'), text.end());
  return {text + "%%", (raw ? text : escaped(UINT32_MAX, text)) + "%"};
}

// The flags, width and precision of a conversion of printf().
std::string modifiers(fuzz::Input* input) {
  constexpr std::string_view kFlags = "-+ #0";
  std::string text;
  const uint8_t flags = input->byte();
  for (size_t i = 0; i < kFlags.size(); ++i) {
    if ((flags >> i & 1) != 0) text += kFlags[i];
  }
  if ((flags & 32) != 0) text += std::to_string(1 + input->byte());
  if ((flags & 64) != 0) text += "." + std::to_string(input->byte());
  return text;
}

std::string repeated(uint32_t count, uint32_t character) {
  return fuzz::printed([&] {
    while (count-- > 0) html_print_ucs2(character);
  });
}

template <typename... Arguments>
void compare(bool raw, const std::string& format, const std::string& expected,
             Arguments... arguments) {
  int32_t count = 0;
  const std::string output =
      fuzz::printed([&] { count = html_printf(raw, format.c_str(), arguments...); });
  EXPECT(output == expected && static_cast<size_t>(count) == expected.size());
}

}  // namespace

int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  fuzz::Input input(data, size);
  const bool raw = (input.byte() & 1) != 0;
  const uint8_t kind = input.byte() % 7;
  const uint32_t number = input.word();
  const uint32_t limit = number % 1000;
  const std::string digits = std::to_string(limit);
  const Literal front = literal(raw, input.line().c_str());
  const Literal back = literal(raw, input.line().c_str());
  const auto run = [&](const std::string& conversion, const std::string& output,
                       auto... arguments) {
    compare(raw, front.format + conversion + back.format, front.output + output + back.output,
            arguments...);
  };
  if (kind < 4) {
    const std::string text = input.text();
    const auto width = static_cast<int32_t>(limit) - 500;
    if (kind == 0) run("%s", escaped(UINT32_MAX, text), text.c_str());
    if (kind == 1) run("%" + digits + "s", escaped(limit, text), text.c_str());
    if (kind == 2) run("%*c", repeated(width < 0 ? 1 : limit - 500, 0x2022), width, 0x2022);
    if (kind == 3) {
      const uint32_t most = width < 0 ? UINT32_MAX : limit - 500;
      run("%*s", escaped(most, text), width, text.c_str());
    }
  } else if (kind == 4) {
    run("%" + digits + "c", repeated(limit, number >> 16), number >> 16);
  } else {
    const bool is_long = kind == 6;
    const char conversion = "diuxX"[input.byte() % 5];
    const std::string format = "%" + modifiers(&input) + (is_long ? "l" : "") + conversion;
    const long wide = static_cast<long>(number) << (input.byte() % 32);
    char expected[1024];
    if (is_long) {
      snprintf(expected, sizeof expected, format.c_str(), wide);
      run(format, expected, wide);
    } else {
      snprintf(expected, sizeof expected, format.c_str(), number);
      run(format, expected, number);
    }
  }
  return 0;
}
