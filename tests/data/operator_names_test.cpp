#include <gtest/gtest.h>

#include "support/temp_dir.h"
#include "tavik.h"

namespace {

using std::string;

TEST(OperatorNames, TakesWellFormedLinesAndAppends) {
  const test::TempDir dir;
  dir.put("one",
          "\"26201\",\"Net One\"\r\n"
          "\"26202\", \"blank\"\n"
          " \"26202\",\"blank\"\n"
          "+COPN: \"26202\",\"prefix\"\n"
          "\"\",\"empty\"\n\"26202\",\"\"\n\"26202\"\n\"26202\",\n\n,\"x\"\n\"26202\";\"x\"\n"
          "\"26202,\"open\"\n"
          "\"1234567\",\"ABCDEFGHIJKLMNOPQRSTUVWXYZ-\",\"more\"\n"
          "\"a,b\",\"long\tcut\n"
          "\"ab\tc\",\"x\"\n"
          "\"\xC3\xA4\",\"ABCDEFGHIJKLMNOPQRSTUVWXYZ\"x\n");
  dir.put("two", "\"1\",\"\xC3\xA4");
  const auto listed = [] {
    string text;
    for (const copn_entry* e = copn_ptr(); e != nullptr; e = e->next) {
      text.append(e->numeric).append("=").append(e->name).append(";");
    }
    return text;
  };
  const string one =
      "26201=Net One;123456=ABCDEFGHIJKLMNOPQRSTUVWXYZ;a,b=long;"
      "\xC3\xA4=ABCDEFGHIJKLMNOPQRSTUVWXYZ;";
  EXPECT_EQ(copn_ptr(), nullptr);
  for (int round = 0; round < 2; ++round) {
    EXPECT_EQ(read_copn_file(dir.path("one").c_str()), 0);
    EXPECT_EQ(listed(), one);
    EXPECT_EQ(read_copn_file(dir.path("none").c_str()), -1);
    EXPECT_EQ(read_copn_file(dir.path("two").c_str()), 0);
    EXPECT_EQ(listed(), one + "1=\xC3\xA4;");
    free_copn();
    EXPECT_EQ(copn_ptr(), nullptr);
  }
}

}  // namespace
