#include <gtest/gtest.h>

#include "support/page_file.h"
#include "tavik.h"

namespace {

// Options by a text behind arg: "+" offers an index, "-" passes it over, the end ends the list.
// The calls are noted as operation and index.
std::string calls;

int32_t answer(uint32_t operation, uint32_t index, uintptr_t arg) {
  calls += std::to_string(operation) + std::to_string(index) + " ";
  if (operation == SELECT_OP_ATTRS) return printf(" id=<");
  if (operation == SELECT_OP_LABEL) return printf("<%u>", index);
  const char option = reinterpret_cast<const char*>(arg)[index];
  return option == '\0' ? -1 : option == '+' ? 5 : 0;
}

uintptr_t word(const char* text) {
  return reinterpret_cast<uintptr_t>(text);
}

// As many rows as arg says, the first one not offered. Nobody asks beyond them.
const char kFirst[] = "a\"b", kSecond[] = "a\"b";
const selectbox_text_option kRows[] = {
    {"-not offered", "h"}, {kFirst, "A&B"}, {kSecond, "2"}, {nullptr, "-"}, {"c", nullptr}};

int32_t row_at(uint32_t index, uintptr_t arg, selectbox_text_option* out) {
  EXPECT_TRUE(out->value == nullptr && out->label == nullptr);
  if (index == arg) return -1;
  *out = kRows[index % 5];
  return index == 0 ? 0 : 1;
}

select_state text_state(uint32_t flags, const char* text) {
  select_state state = {flags, {}};
  state.value.text = text;
  return state;
}

TEST(Selectbox, PrintsAPage) {
  const select_state number = {PF_DISABLED | PF_RAW, {2}}, text = text_state(PF_READONLY, "a\"b");
  const auto every_second = [](uint32_t operation, uint32_t index, uintptr_t) {
    return answer(operation, index, word("+-+"));
  };
  calls.clear();
  test::expect_page("fields/selectbox.html", [&] {
    EXPECT_EQ(gen_selectbox_num(&number, "m", answer, word("+-+"), " x=&"), number.flags);
    EXPECT_EQ(gen_selectbox_num(nullptr, nullptr, answer, word("+"), nullptr), PF_DISABLED);
    EXPECT_EQ(gen_xselectbox_num(&number, answer, word(""), " x=%s", "<"), number.flags);
    gen_selectbox_class(nullptr, "<n>", nullptr, 0, 9, 0);
    puts(calls.c_str());
    EXPECT_EQ(gen_selectbox_text(&text, "<t>", row_at, nullptr, 5, " &"), PF_READONLY);
    gen_selectbox_text(&text, nullptr, row_at, nullptr, 0, nullptr);
    gen_selectbox_text(&text, nullptr, row_at, every_second, 5, nullptr);
    EXPECT_EQ(gen_selectbox_text(nullptr, "t", row_at, nullptr, 5, ""), PF_DISABLED);
    EXPECT_EQ(gen_selectbox_text(&text, "t", nullptr, nullptr, 5, ""), PF_DISABLED);
  });
  calls.clear();
  const std::string endless(300, '+');
  test::printed([&] { gen_xselectbox_num(&number, answer, word(endless.c_str()), nullptr); });
  EXPECT_EQ(calls.substr(calls.size() - 15), "2254 0255 2255 ");
}

TEST(Selectbox, FindsTheFirstRowOfAValue) {
  const std::tuple<const char*, const char*, uintptr_t, const char*> cases[] = {
      {"a\"b", "c", 5, kFirst},
      {"a\"b", kSecond, 5, kSecond},
      {"c", "a", 4, "a"},
      {nullptr, "a", 5, "a"},
      {kRows[0].value, "c", 5, "c"}};
  for (const auto& [text, current, rows, expected] : cases) {
    select_state state = text_state(PF_RAW, current);
    EXPECT_EQ(scan_select_text(text, &state, row_at, rows), current != expected);
    EXPECT_EQ(state.value.text, expected);
    EXPECT_EQ(scan_select_text(text, &state, nullptr, 5), 0);
    EXPECT_EQ(scan_select_text(text, nullptr, row_at, 5), 0);
  }
  const selectbox_text_row endless = [](uint32_t index, uintptr_t hit, selectbox_text_option* out) {
    out->value = index == hit ? "hit" : "no";
    return 1;
  };
  for (const uint32_t hit : {255U, 256U}) {
    select_state state = text_state(0, "no");
    EXPECT_EQ(scan_select_text("hit", &state, endless, hit), hit < 256) << hit;
  }
}

}  // namespace
