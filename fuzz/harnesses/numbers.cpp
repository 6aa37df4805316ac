// Number, list, range and time texts. A text made of numbers gives them back; any other text keeps
// to the bounds, and a value printed and submitted again is no change.
#include <ctype.h>

#include "harness.h"

namespace {

std::string blanks(fuzz::Input* input) {
  return std::string(input->byte() % 3, ' ');
}

void made_of_numbers(fuzz::Input* input) {
  std::vector<uint32_t> numbers;
  std::string list = blanks(input) + "(";
  for (uint32_t left = input->byte() % 9; left > 0; --left) {
    numbers.push_back(input->word());
    list += blanks(input) + std::to_string(numbers.back()) + (left > 1 ? "," : "");
  }
  const fuzz::Exact whole(list + "),");
  uint32_t count = 0;
  const auto capacity = static_cast<uint32_t>(input->byte() % 9);
  std::vector<uint32_t> array(capacity);
  array.reserve(1);
  const char* const end = scan_list_uint(whole.get(), &count, array.data(), capacity);
  EXPECT(end == whole.get() + list.size() + 2);
  EXPECT(count == std::min<size_t>(capacity, numbers.size()));
  EXPECT(std::equal(array.begin(), array.begin() + count, numbers.begin()));

  const uint32_t a = input->word();
  const uint32_t b = input->word();
  const uint32_t low = std::min(a, b);
  const uint32_t high = std::max(a, b);
  uint32_t first = 0;
  uint32_t last = 0;
  const std::string range = blanks(input) + std::to_string(a) + blanks(input) +
                            (input->byte() % 2 == 0 ? "-" : ":") + blanks(input) +
                            std::to_string(b);
  scan_range(fuzz::Exact(range).get(), &first, &last, 0, UINT32_MAX, 7);
  EXPECT(first == low && last == high);

  const uint32_t hours = a % 1000000;
  const uint32_t minutes = b % 1000000;
  const std::string time = std::to_string(hours) + ":" + std::to_string(minutes);
  EXPECT(scan_time(fuzz::Exact(time).get(), &first, &last) == 2);
  EXPECT(first * 60 + last == (hours * 60 + minutes) % (24 * 60) && last < 60);
}

void range_of(const char* text, uint32_t minimum, uint32_t maximum, uint32_t fallback) {
  uint32_t first = 1;
  uint32_t last = 2;
  const bool changed = scan_range(text, &first, &last, minimum, maximum, fallback) != 0;
  EXPECT(changed == (first != 1 || last != 2));
  if (first == fallback && last == fallback) return;
  EXPECT(first <= last && (minimum > maximum || (minimum <= first && last <= maximum)));
  if (minimum > maximum) return;
  const std::string shown =
      fuzz::printed([&] { gen_xrangebox(9, &first, &last, nullptr, 0, nullptr); });
  const size_t at = shown.find(" value=\"") + 8;
  const fuzz::Exact again(shown.substr(at, shown.find('"', at) - at));
  EXPECT(scan_range(again.get(), &first, &last, minimum, maximum, fallback) == 0);
}

void any_text(fuzz::Input* input) {
  const uint32_t minimum = input->word();
  const uint32_t maximum = input->word();
  const uint32_t fallback = input->word();
  const std::string text = input->text();
  const fuzz::Exact exact(text);
  range_of(exact.get(), minimum, maximum, fallback);

  const std::string digits = text.substr(std::min(text.find_first_not_of(' '), text.size()));
  uint32_t value = fallback;
  scan_number(exact.get(), &value, 0, UINT32_MAX, 77);
  EXPECT(value == (!digits.empty() && isdigit(static_cast<unsigned char>(digits[0])) != 0
                       ? fuzz::number_of(digits)
                       : 77));
  EXPECT(str_to_uint(exact.get()) == fuzz::number_of(text));
  EXPECT(str_to_sint(exact.get()) == static_cast<int32_t>(text[0] == '-'
                                                              ? -fuzz::number_of(text.substr(1))
                                                              : fuzz::number_of(text)));

  const char* const end = exact.get() + text.size();
  for (const char* at = exact.get(); at != nullptr;) {
    const char* const next = scan_uint(at, &value);
    EXPECT(next == nullptr || (at + 1 < next && next <= end && next[-1] == ','));
    at = next;
  }
  uint32_t count = 0;
  uint32_t array[4];
  for (const char* at = exact.get(); at != nullptr && *at != '\0';) {
    const char* const next = scan_list_uint(at, &count, array, 4 - count);
    EXPECT(count <= 4 && (next == nullptr || (at < next && next <= end)));
    at = next;
  }
  uint32_t hours = 0;
  uint32_t minutes = 0;
  const int32_t found = scan_time(exact.get(), &hours, &minutes);
  EXPECT(-1 <= found && found <= 2 && hours < 24 && minutes < 60);
}

}  // namespace

int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  fuzz::Input input(data, size);
  (input.byte() & 1) == 0 ? any_text(&input) : made_of_numbers(&input);
  return 0;
}
