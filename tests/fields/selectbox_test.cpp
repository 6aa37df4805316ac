#include <gtest/gtest.h>

#include <cerrno>

#include "support/capture.h"
#include "support/html.h"
#include "support/scripted_io.h"
#include "support/temp_dir.h"
#include "tavik.h"

namespace {

using test::html;
using test::printed;

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

std::string option(const std::string& value, const std::string& label) {
  return html("<option value='" + value + ">" + label + "</option>\r\n");
}

TEST(SelectboxClass, MarksEveryNonZeroValueUpToTheCount) {
  int32_t context = 2;
  const selectbox_class options = [](void* own, uint32_t operation, uint32_t index, uintptr_t arg) {
    if (operation == SELECT_OP_VALUE) return -static_cast<int32_t>(index);
    return *static_cast<int32_t*>(own) + static_cast<int32_t>(arg);
  };
  EXPECT_EQ(printed([&] {
              gen_selectbox_class(&context, nullptr, options, 1, 2, PF_DISABLED);
              gen_selectbox_class(&context, "<n>", nullptr, 0, 9, PF_DISABLED);
            }),
            "<select disabled>\r\n" + option("'", "") + option("' selected", "") +
                html("</select>\r\n<select name='<n>' disabled>\r\n</select>\r\n"));
}

TEST(SelectboxNum, PrintsTheOfferedIndexes) {
  const select_state state = {PF_DISABLED | PF_RAW, {2}};
  calls.clear();
  EXPECT_EQ(printed([&] {
              EXPECT_EQ(gen_selectbox_num(&state, "m", answer, word("+-+"), " x=&"), state.flags);
              EXPECT_EQ(gen_selectbox_num(nullptr, nullptr, answer, word("+"), nullptr), 1U);
              EXPECT_EQ(gen_xselectbox_num(&state, answer, word(""), " x=%s", "<"), state.flags);
              EXPECT_EQ(selectbox_num_show_value(~0U, ~0U), 1);
            }),
            html("<select name='m' x=& disabled>\r\n") + option("0'", "<0>") +
                option("2' selected", "<2>") + "</select>\r\n<select id=< disabled>\r\n" +
                option("0' selected", "<0>") +
                "</select>\r\n<select x=< disabled>\r\n</select>\r\n4294967295");
  EXPECT_EQ(calls, "00 20 01 02 22 03 30 00 20 01 00 ");
  const std::string endless(300, '+');
  printed([&] { gen_xselectbox_num(&state, answer, word(endless.c_str()), nullptr); });
  EXPECT_EQ(calls.substr(33, 9), "30 00 20 ");
  EXPECT_EQ(calls.substr(calls.size() - 10), "0255 2255 ");
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

TEST(SelectboxText, PrintsRowsEscaped) {
  const select_state state = text_state(PF_READONLY, "a\"b");
  const auto every_second = [](uint32_t operation, uint32_t index, uintptr_t) {
    return answer(operation, index, word("+-+"));
  };
  EXPECT_EQ(printed([&] {
              EXPECT_EQ(gen_selectbox_text(&state, "<t>", row_at, nullptr, 5, nullptr),
                        PF_READONLY);
              gen_selectbox_text(&state, nullptr, row_at, every_second, 5, nullptr);
              gen_selectbox_text(&state, nullptr, row_at, nullptr, 0, " &");
              EXPECT_EQ(gen_selectbox_text(nullptr, "t", row_at, nullptr, 5, ""), PF_DISABLED);
              EXPECT_EQ(gen_selectbox_text(&state, "t", nullptr, nullptr, 5, ""), PF_DISABLED);
            }),
            html("<select name='<t>' readonly>\r\n") + option("a&quot;b' selected", "A&amp;B") +
                option("a&quot;b' selected", "2") + option("' selected", "-") + option("c'", "") +
                "</select>\r\n<select id=< readonly>\r\n" + option("-not offered'", "<0>") +
                option("a&quot;b' selected", "<2>") +
                "</select>\r\n<select & readonly>\r\n</select>\r\n");
}

TEST(SelectboxText, ScansForTheFirstRowOfAValue) {
  const std::tuple<const char*, const char*, uintptr_t, const char*> cases[] = {
      {"a\"b", "c", 5, kFirst}, {"a\"b", kSecond, 5, kSecond},
      {"c", "a", 4, "a"},       {kRows[0].value, "c", 5, "c"},
      {"C", "a", 5, "a"},       {nullptr, "a", 5, "a"}};
  for (const auto& [text, current, rows, expected] : cases) {
    select_state state = text_state(PF_RAW, current);
    EXPECT_EQ(scan_select_text(text, &state, row_at, rows), current != expected);
    EXPECT_EQ(state.value.text, expected);
  }
  const selectbox_text_row endless = [](uint32_t index, uintptr_t hit, selectbox_text_option* out) {
    out->value = index == hit ? "hit" : "no";
    return 1;
  };
  for (const uint32_t hit : {0U, 255U, 256U}) {
    select_state state = text_state(0, "no");
    EXPECT_EQ(scan_select_text("hit", &state, endless, hit), hit < 256) << hit;
    EXPECT_EQ(scan_select_text("c", &state, nullptr, 5), 0);
  }
  EXPECT_EQ(scan_select_text("c", nullptr, row_at, 5), 0);
}

TEST(SelectboxText, ReadsNoMoreThanTheLongestRow) {
  const test::TempDir dir;
  const std::tuple<const char*, const char*, uintptr_t, uint32_t, std::string> cases[] = {
      {"i", "a\"bcdef\n", 5, 0, "a\"b"},   {"i", "c\n", 5, 0, "c"},
      {"i", "-not offered\n", 5, 0, "d"},  {"i", "\n", 5, PF_DISABLED, "d"},
      {"i", "abc\n", 0, PF_DISABLED, "d"}, {"missing", "", 5, PF_DISABLED, "d"}};
  select_state state;
  for (const auto& [name, stored, rows, flags, expected] : cases) {
    dir.put("i", stored);
    state = text_state(PF_READONLY, "");
    rd_selectbox_text_item(dir.c_str(), name, &state, row_at, rows, "d");
    EXPECT_EQ(state.flags, flags);
    EXPECT_EQ(state.value.text, expected);
  }
  rd_selectbox_text_item(dir.c_str(), "i", nullptr, row_at, 5, "d");
  rd_selectbox_text_item(dir.c_str(), "i", &state, nullptr, 5, "e");
  EXPECT_STREQ(state.value.text, "d");
  dir.put("i", std::string("c\0\0", 3));
  const test::ScriptedIo half_way(test::next_descriptor(), {{0, 2}, {EIO}});
  rd_selectbox_text_item(dir.c_str(), "i", &state, row_at, 5, "e");
  EXPECT_STREQ(state.value.text, "e") << "not the bytes that had arrived";
  EXPECT_EQ(state.flags, PF_DISABLED);
}

}  // namespace
