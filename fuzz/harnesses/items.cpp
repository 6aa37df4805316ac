// Item and number files, read in all ways; a value that was read is what the item holds, and
// storing it writes nothing.
#include "harness.h"

namespace {

int32_t collect(uintptr_t words, char* word) {
  reinterpret_cast<std::vector<std::string>*>(words)->emplace_back(word);
  return 0;
}

std::vector<std::string> words_of(const std::string& value) {
  std::vector<std::string> words;
  for (size_t at = 0; (at = value.find_first_not_of(' ', at)) != std::string::npos;) {
    const size_t end = std::min(value.find(' ', at), value.size());
    words.push_back(value.substr(at, end - at));
    at = end;
  }
  return words;
}

void numbers(const char* directory, const char* name, const std::string& value) {
  uint32_t number = 77;
  int32_t signed_number = 77;
  const auto length = static_cast<int32_t>(value.size());
  EXPECT(read_item_uint(directory, name, &number) == length);
  EXPECT(read_item_sint(directory, name, &signed_number) == length);
  EXPECT(number == (value.empty() ? 77 : fuzz::number_of(value)));
  const bool is_negative = !value.empty() && value[0] == '-';
  EXPECT(is_negative ? static_cast<uint32_t>(signed_number) == -fuzz::number_of(value.substr(1))
                     : static_cast<uint32_t>(signed_number) == number);
}

}  // namespace

int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  fuzz::Input input(data, size);
  const int32_t count = input.byte();
  const uint32_t maximum = input.byte();
  const std::string bytes = input.rest();
  const fuzz::File file(bytes);
  const std::string item = file.name();
  const char* const directory = fuzz::File::directory();
  const char* const name = item.c_str();
  const std::string whole = fuzz::value_of(bytes);

  std::vector<char> buffer(static_cast<size_t>(count) + 1);
  const int32_t length = read_item(directory, name, buffer.data(), count);
  EXPECT(static_cast<size_t>(length) == std::min<size_t>(whole.size(), buffer.size() - 1));
  EXPECT(whole.substr(0, static_cast<size_t>(length)) == buffer.data());
  char* copy = nullptr;
  EXPECT(read_item_alloc(directory, name, &copy) == static_cast<int32_t>(whole.size()));
  EXPECT(whole == copy);
  free(copy);
  std::vector<std::string> words;
  read_items_str(collect, reinterpret_cast<uintptr_t>(&words), directory, name);
  EXPECT(words == words_of(whole));
  numbers(directory, name, fuzz::value_of(bytes.substr(0, 15)));

  rd_textbox_item(directory, name, buffer.data(), count, maximum, 0);
  EXPECT(utf8_length(buffer.data(), UINT32_MAX, nullptr) <= maximum ||
         utf8_length(buffer.data(), UINT32_MAX, nullptr) == UINT32_MAX);
  fuzz::printed(
      [&] { gen_xtextbox_item(directory, name, static_cast<int32_t>(maximum), 0, nullptr); });
  const auto room = static_cast<int32_t>(whole.size());
  const int32_t written = update_item(directory, name, whole.c_str(), room);
  EXPECT(written >= 0);
  EXPECT(update_item(directory, name, whole.c_str(), room) == 0);
  EXPECT(read_item_alloc(directory, name, &copy) == room && whole == copy);
  free(copy);
  return 0;
}
