#include <fcntl.h>
#include <gtest/gtest.h>
#include <mtd/mtd-user.h>
#include <sys/ioctl.h>

#include "support/child.h"
#include "support/scripted_ioctl.h"
#include "support/temp_dir.h"
#include "tavik.h"

namespace {

using std::string;
using namespace std::string_literals;

class FlatDatabase : public testing::Test {
 protected:
  ~FlatDatabase() override { EXPECT_EQ(free_db(list_), 0); }

  db_row* read(const string& text, uint32_t columns) {
    free_db(list_);
    dir_.put("db", text);
    EXPECT_EQ(read_db_file(dir_.path("db").c_str(), columns, &list_), 0);
    return list_;
  }
  test::TempDir dir_;
  db_row* list_ = nullptr;
};

TEST_F(FlatDatabase, ReadsRowsOfLines) {
  const db_row* const row = read("A\nB\n#x\nC\nD\n\n\n", 3);
  EXPECT_EQ(row->used, 3U);
  EXPECT_EQ(row->columns[2], string("C"));
  EXPECT_EQ(row->next->columns[0], row->next->next->columns[2]) << "null";
  EXPECT_EQ(row->next->next->next, nullptr);
  EXPECT_EQ(read("A\n\nB\n", UINT32_MAX), nullptr);
  db_row* other = list_;
  EXPECT_EQ(read_db_file(dir_.path("db").c_str(), 3, nullptr), 0);
  EXPECT_EQ(read_db_file(dir_.path("none").c_str(), 3, &other), -1);
  EXPECT_EQ(other, nullptr);
}

TEST_F(FlatDatabase, FindsTheFirstRowWithTheColumn) {
  db_row* const first = read("x\n\nB\nx\n\nC\nx\n", 2);
  EXPECT_EQ(search_db(first, 0, "x"), first);
  EXPECT_EQ(search_db(first, 1, "x"), first->next);
  free(std::exchange(first->next->columns[1], nullptr));
  EXPECT_EQ(search_db(first, 1, "x"), first->next->next);
  for (const char* none : {"X", static_cast<const char*>(nullptr)}) {
    for (const uint32_t column : {0, 1, 2}) EXPECT_EQ(search_db(first, column, none), nullptr);
  }
  EXPECT_EQ(search_db(nullptr, 0, "x"), nullptr);
  EXPECT_EQ(test::printed([&] { gen_selectbox_dbase(first, 0, 1, "c", "x", PF_READONLY); }),
            "<select name=\"c\" readonly>\r\n<option value=\"C\">x</option>\r\n</select>");
}

TEST_F(FlatDatabase, PrintsASelectControl) {
  read("de\nGermany\n\nshort\n\n\"&\n<\xC3\x96>\n\nde\n\xE2\x82\xAC\n", 2);
  const std::tuple<const char*, const char*, int32_t, string, string, string> cases[] = {
      {"de\n", nullptr, 9, "", " selected", ""},
      {"de x\n", "n", 2, " name=\"n\"", " selected", ""},
      {"\"&\n", nullptr, 2, "", "", " selected"},
      {"d\n", nullptr, 2, "", "", ""},
      {"\n", nullptr, 9, " disabled", "", ""},
      {"de\n", nullptr, -1, " disabled", "", ""}};
  for (const auto& [item, name, size, flags, de, odd] : cases) {
    dir_.put("item", item);
    const auto print = [&] {
      gen_selectbox_dbase_item(list_, 0, 1, dir_.c_str(), "item", name, size);
    };
    EXPECT_EQ(test::printed(print), "<select" + flags + ">\r\n<option value=\"de\"" + de +
                                        ">Germany</option>\r\n<option value=\"&quot;&amp;\"" + odd +
                                        ">&lt;&Ouml;&gt;</option>\r\n<option value=\"de\"" + de +
                                        ">&#8364;</option>\r\n</select>");
  }
}

TEST(OperatorNames, AreAppendedFileByFile) {
  const test::TempDir dir;
  dir.put("one", "\"26201\",\"Net One\"\r\n\"26202\", \"no\"\n\"1234567\",\"One\"");
  dir.put("two", "\"1\",\"\xC3\xA4");
  for (int round = 0; round < 2; ++round) {
    EXPECT_EQ(copn_ptr(), nullptr);
    EXPECT_EQ(read_copn_file(dir.path("one").c_str()), 0);
    EXPECT_EQ(read_copn_file(dir.path("none").c_str()), -1);
    EXPECT_EQ(read_copn_file(dir.path("two").c_str()), 0);
    string listed;
    for (const copn_entry* e = copn_ptr(); e != nullptr; e = e->next) {
      listed.append(e->numeric).append("=").append(e->name).append(";");
    }
    EXPECT_EQ(listed, "26201=Net One;123456=One;1=\xC3\xA4;");
    free_copn();
  }
  EXPECT_EQ(copn_ptr(), nullptr);
}

void show_variables() {
  for (const char* name : {"a", "ab", "b", "A", "a=x", "none", "two", "bare", "", "late"}) {
    if (const char* value = uboot_getenv(name)) printf(" [%s]=[%s]", name, value);
  }
}

TEST(UbootEnv, IsReadFromADeviceThatIsRight) {
  const string small = "a=1\0"s, wide = "ab=2\0"s + string(65536 - 4 - 5, '\xFF');
  const std::tuple<string, uint32_t, string> cases[] = {
      {"a=1\0ab=2\0none=\0two=x=y\0two=z\0bare\0\0late=1\0"s, 46,
       "0 [a]=[1] [ab]=[2] [a=x]=[1] [none]=[] [two]=[x=y]"},
      {"bare\0=nameless\0b=\xFF\0\0"s, 24, "0 [b]=[\xFF] []=[nameless]"},
      {wide, 65536, "0 [ab]=[2]"},
      {wide, 65537, "2"},
      {small, 8, "0 [a]=[1] [a=x]=[1]"},
      {small, 7, "5"},
      {small, 9, "3"}};
  const test::TempDir dir;
  const string path = dir.path("mtd");
  for (const char* none : {static_cast<const char*>(nullptr), path.c_str(), dir.c_str()}) {
    EXPECT_EQ(read_uboot_env(none), -1);
  }
  for (const auto& [environment, size, expected] : cases) {
    const uint32_t crc =
        ~crc32(UINT32_MAX, environment.data(), static_cast<uint32_t>(environment.size()));
    string image;
    for (int i = 0; i < 4; ++i) image += static_cast<char>(crc >> 8 * i);
    dir.put("mtd", image + environment);
    const test::ScriptedIoctl device([bytes = size](int fd, unsigned long request, void* info) {
      static_cast<mtd_info_user*>(info)->type = MTD_NORFLASH;
      static_cast<mtd_info_user*>(info)->size = bytes;
      return request == MEMGETINFO && (fcntl(fd, F_GETFL) & O_DSYNC) != 0 ? 0 : -1;
    });
    const auto page = [&] {
      show_variables();
      printf("%d", read_uboot_env(path.c_str()));
      show_variables();
      free_uboot_env();
      return 0;
    };
    EXPECT_EQ(test::in_child(page).output, expected);
  }
}

TEST(Crc32, GivesTheCheckValue) {
  EXPECT_EQ(crc32(crc32(UINT32_MAX, "1234", 4), "56789", 5), 0x340BC6D9U);
  EXPECT_EQ(crc32(7, "", 0), 7U);
}

}  // namespace
