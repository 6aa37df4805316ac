// The functions that show a field from an item, all with the same items, and those that store one.
#include <arpa/inet.h>
#include <gtest/gtest.h>

#include <cerrno>

#include "support/page_file.h"
#include "support/rows.h"
#include "support/scripted_io.h"
#include "support/temp_dir.h"
#include "tavik.h"

namespace {

using test::printed;

// The longest value has 4 bytes. The first row is not offered.
int32_t row_at(uint32_t index, uintptr_t, selectbox_text_option* out) {
  const char* const values[] = {"0", "7", "<\u20AC", nullptr, "10"};
  out->value = values[index % 5];
  return index == 0 ? 0 : index < 5 ? 1 : -1;
}

// What each function makes of the item i: results, values, and what is printed.
std::string shown(const char* dir, std::vector<test::Answer> answers = {}) {
  const uint32_t fallback = inet_addr("9.8.7.6");
  uint32_t number = 99, address = 5, flags = PF_RAW;
  ipv4_cidr net = {5, 5};
  select_state state = {PF_READONLY, {}};
  const auto note = [](uint32_t result) { printf("[%X]\n", result); };
  return printed([&] {
    const test::ScriptedIo io(test::next_descriptor(), std::move(answers));
    note(rd_checkbox_item(dir, "i", 0)), note(rd_checkbox_item(dir, "i", PF_CHECKED | PF_RAW));
    note(rd_numberbox_item(dir, "i", &number, 42)), printf("%u\n", number);
    note(gen_numberbox_item(dir, "i", "n", 5, 42, PF_SUBMIT));
    note(flags = gen_json_number_item(dir, "i", "n", 42, flags));
    note(gen_json_number_item(dir, "i", "n", 42, flags | PF_DISABLED));
    note(rd_ipv4box_item(dir, "i", &address, fallback)), printf("%s\n", inet_ntoa({address}));
    note(rd_ipv4cidr_item(dir, "i", &net, fallback));
    printf("%s/%u\n", inet_ntoa({net.address}), net.prefix);
    rd_selectbox_text_item(dir, "i", &state, row_at, 0, "-");
    note(state.flags), printf("%s\n", state.value.text);
    note(gen_xtextbox_item(dir, "i", 2, PF_RAW, " x=%d", 7));
    note(gen_json_text_item(dir, "i", 2, "t", 0));
    note(static_cast<uint32_t>(gen_text_item(dir, "i")));
  });
}

TEST(FieldItems, AreShown) {
  const test::TempDir dir;
  const std::string missing = shown(dir.c_str());
  test::expect_page("fields/items.html", [&] {
    puts(missing.c_str());
    for (const char* stored : {"", "7\n", "100.100.100.100/300", "<\u20AC\u20AC", "0"}) {
      dir.put("i", stored);
      puts(shown(dir.c_str()).c_str());
    }
  });
  std::vector<test::Answer> half_way;
  for (int i = 0; i < 15; ++i) half_way.insert(half_way.end(), {{0, 1}, {EIO}});
  EXPECT_EQ(shown(dir.c_str(), half_way), missing) << "not the byte that had arrived";
  const int32_t page = getpagesize();
  dir.put("i", std::string(page, 'x'));
  EXPECT_EQ(printed([&] { gen_text_item(dir.c_str(), "i"); }).size(), page - 1U);
}

TEST(FieldItems, NeedSomewhereToBePut) {
  EXPECT_EQ(rd_numberbox_item("none", "i", nullptr, 42), PF_DISABLED);
  EXPECT_EQ(rd_ipv4box_item("none", "i", nullptr, 7) + rd_ipv4cidr_item("none", "i", nullptr, 7),
            2);
  EXPECT_EQ(rd_textbox_item("none", "i", nullptr, 7, 7, PF_RAW), PF_RAW | PF_DISABLED);
  EXPECT_EQ(gen_json_number_item("none", "i", nullptr, 42, PF_RAW), PF_RAW);
  select_state state = {PF_RAW, {}};
  rd_selectbox_text_item("none", "i", nullptr, row_at, 0, "-");
  rd_selectbox_text_item("none", "i", &state, nullptr, 0, "-");
  EXPECT_EQ(state.flags, PF_RAW);
}

TEST(FieldItems, AreStoredOnChange) {
  const test::TempDir files;
  const char* const dir = files.c_str();
  const ipv4_cidr net{inet_addr("100.100.100.100"), 4111222333};
  const std::string large(64 << 20, 'x');  // more than a stack holds
  // Prints what became of the item, and puts it back.
  const auto line = [&](int32_t result) {
    printf("[%d]%s%s", result, files.touched("i") ? "" : " untouched ", files.get("i")->c_str());
    files.put("i", "01\n");
    files.age("i");
  };
  test::expect_page("fields/stored.txt", [&] {
    files.put("i", "old\n");
    line(wr_checkbox_item(dir, "i", PF_CHECKED | PF_RAW));
    line(wr_checkbox_item(dir, "i", PF_CHECKED)), line(wr_checkbox_item(dir, "i", PF_DISABLED));
    line(wr_numberbox_item(dir, "i", ~0U)), line(wr_numberbox_item(dir, "i", 1));
    line(update_ipv4box_item(dir, "i", &net.address)), line(update_ipv4box_item(dir, "i", nullptr));
    line(update_ipv4cidr_item(dir, "i", &net)), line(update_ipv4cidr_item(dir, "i", nullptr));
    line(update_textbox(dir, "i", "abcd", 1));
    line(update_textbox_item(dir, "i", nullptr, 3, nullptr));
    line(update_textbox_item(dir, "i", " 0_ 1 ", 9, textbox_filter_dns));
    line(update_textbox_item(dir, "i", "012", 2, nullptr));
    line(update_textbox_item(dir, "i", "", 3, nullptr));
    line(update_textbox_item(dir, "i", "a\377\u20AC\u00E4z", 3, nullptr));
    line(update_textbox_item(dir, "i", "\337\377\337\377b", 9, nullptr));  // two bytes become three
    line(update_textbox_item(dir, "i", "new", ~0U, nullptr));
    line(update_textbox_item(dir, "i", "new", 0x55555556, nullptr));
    line(update_textbox_item(dir, "i", large.c_str(), 5, nullptr));
    for (const char* text :
         {"01\n", "\r\n", "", "01", "01\n\u20AC\u20AC", static_cast<const char*>(nullptr)}) {
      line(update_textarea_file(dir, "i", text, 4)), putchar('\n');
    }
    line(update_textarea_file(dir, "i", "0", 0x55555556));
    files.put("i", "01\nlonger\n"), files.age("i");
    line(update_textarea_file(dir, "i", "01\n", 1));
  });
  EXPECT_EQ(update_textarea_file(dir, "missing", "", 5), -1);
  EXPECT_EQ(update_textarea_file(dir, ".", "a", 0), -1) << "open to read, but not to write";
  EXPECT_EQ(files.get("missing"), std::nullopt);
}

TEST(Textarea, LoadsAFileUpToAMaximumInCharacters) {
  const test::TempDir dir;
  const auto load = [&](uint32_t maximum, const char* name = "i") {
    char* text = nullptr;
    const int32_t result = get_textarea_file(&text, dir.c_str(), name, maximum);
    const std::string loaded = test::joined(result, text == nullptr ? "none" : text);
    free(text);
    return loaded;
  };
  dir.put("i", {"\r\n\u20AC\0z", 7});
  EXPECT_EQ(load(9) + load(3) + load(2), "28 \r\n\u20AC10 \r\n\u20AC7 \r\n");
  dir.put("i", "a\xFFzz");
  EXPECT_EQ(load(9) + load(0) + load(9, "missing"),
            "28 a\xFF"
            "1 0 ");
  EXPECT_EQ(load(0x2AAAAAAB) + load(0x55555556) + load(9, nullptr), "-1 none-1 none-1 none");
  EXPECT_EQ(get_textarea_file(nullptr, dir.c_str(), "i", 5), -1);
}

TEST(Textarea, DropsEveryCr) {
  char text[] = "a\r\nb\r\rc\r";
  textarea_to_unix(text, text), textarea_to_unix(nullptr, text), textarea_to_unix(text, nullptr);
  EXPECT_STREQ(text, "a\nbc");
}

}  // namespace
