#include <gtest/gtest.h>

#include "support/capture.h"
#include "support/temp_dir.h"
#include "tavik.h"

namespace {

using std::string;

class FlatDatabase : public testing::Test {
 protected:
  ~FlatDatabase() override { EXPECT_EQ(free_db(list_), 0); }

  db_row* read(const string& text, uint32_t columns) {
    free_db(list_);
    dir_.put("db", text);
    EXPECT_EQ(read_db_file(dir_.path("db").c_str(), columns, &list_), 0);
    return list_;
  }
  string select(uint32_t value, uint32_t label, const char* name, const char* selected) {
    return test::printed(
        [&] { gen_selectbox_dbase(list_, value, label, name, selected, PF_READONLY); });
  }
  test::TempDir dir_;
  db_row* list_ = nullptr;
};

TEST_F(FlatDatabase, ReadsRowsOfLines) {
  const struct {
    string text;
    uint32_t columns;
    string rows;
  } cases[] = {
      {"A\nB\n\nC\nD\nE\nF\n", 3, "(A|B|)(C|D|E|)"},
      {"\n\t\nA", 3, "(A|)"},
      {"A\n\n\nB\n\n", 3, "(A|)()(B|)()"},
      {"#x\nA\n#y\nB\n #z\n", 9, "(A|B| #z|)"},
      {"# only\n#comments\n", 3, ""},
      {"A \tlost\r\n\x7F\n  B\x01\n\xC3\xA4#\n\tC\nD\r\n", 3, "(A |)(  B|\xC3\xA4#|)(D|)"},
      {string("A\0B\n\0C\nD\n", 9), 3, "(A|)(D|)"},
      {"A\n\nB\n", 0, "()()"},
      {"A\n\nB\n", UINT32_MAX, ""},
      {string(9000, 'x') + "\nB", 2, "(" + string(9000, 'x') + "|B|)"},
  };
  for (const auto& c : cases) {
    string rows;
    for (const db_row* row = read(c.text, c.columns); row != nullptr; row = row->next) {
      rows += "(";
      for (uint32_t i = 0; i < row->used; ++i) rows.append(row->columns[i]).append("|");
      for (uint32_t i = row->used; i < c.columns; ++i) EXPECT_EQ(row->columns[i], nullptr);
      rows += ")";
    }
    EXPECT_EQ(rows, c.rows);
  }
  EXPECT_EQ(read_db_file(dir_.path("db").c_str(), 3, nullptr), 0);
  db_row* other = list_;
  EXPECT_EQ(read_db_file(dir_.path("none").c_str(), 3, &other), -1);
  EXPECT_EQ(other, nullptr);
}

TEST_F(FlatDatabase, FindsTheFirstRowWithTheColumn) {
  db_row* const first = read("x\n\nB\nx\n\nC\nx\n", 2);
  EXPECT_EQ(search_db(first, 0, "x"), first);
  EXPECT_EQ(search_db(first, 1, "x"), first->next);
  free(first->next->columns[1]);
  first->next->columns[1] = nullptr;
  EXPECT_EQ(search_db(first, 1, "x"), first->next->next);
  EXPECT_EQ(search_db(first, 1, "X"), nullptr);
  EXPECT_EQ(search_db(first, 2, "x"), nullptr);
  EXPECT_EQ(search_db(first, 0, nullptr), nullptr);
  EXPECT_EQ(search_db(nullptr, 0, "x"), nullptr);
  EXPECT_EQ(select(0, 1, nullptr, "x"),
            "<select readonly>\r\n<option value=\"C\">x</option>\r\n</select>");
}

TEST_F(FlatDatabase, PrintsASelectControl) {
  EXPECT_EQ(select(0, 1, "c", "de"), "<select name=\"c\" readonly>\r\n</select>");
  read("de\nGermany\n\nshort\n\n\"&\n<\xC3\x96>\n\nde\n\xE2\x82\xAC\n", 2);
  const struct {
    string item;
    int32_t size;
    string flags, de, odd;
  } cases[] = {{"de\n", 9, "", " selected", ""},  {"de x\n", 2, "", " selected", ""},
               {"\"&\n", 2, "", "", " selected"}, {"d\n", 2, "", "", ""},
               {"\n", 9, " disabled", "", ""},    {"de\n", -1, " disabled", "", ""}};
  for (const auto& c : cases) {
    dir_.put("item", c.item);
    EXPECT_EQ(test::printed([&] {
                gen_selectbox_dbase_item(list_, 0, 1, dir_.c_str(), "item", nullptr, c.size);
              }),
              "<select" + c.flags + ">\r\n<option value=\"de\"" + c.de +
                  ">Germany</option>\r\n<option value=\"&quot;&amp;\"" + c.odd +
                  ">&lt;&Ouml;&gt;</option>\r\n<option value=\"de\"" + c.de +
                  ">&#8364;</option>\r\n</select>");
  }
  EXPECT_EQ(test::printed(
                [&] { gen_selectbox_dbase_item(nullptr, 0, 0, dir_.c_str(), "missing", "n", 9); }),
            "<select name=\"n\" disabled>\r\n</select>");
}

}  // namespace
