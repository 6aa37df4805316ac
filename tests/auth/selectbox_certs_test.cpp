#include <gtest/gtest.h>

#include "support/capture.h"
#include "support/temp_dir.h"
#include "tavik.h"

namespace {

std::string printed_for(const std::string& folder, const char* selected, uint32_t flags) {
  return test::printed(
      [&] { gen_selectbox_certs(folder.c_str(), "c", selected, "<none>", flags, " id=\"<\""); });
}

TEST(SelectboxCerts, OffersFilesAndTheNoneOption) {
  const test::TempDir dir;
  const std::string certs = dir.path("certs"), empty = dir.path("empty"), gone = dir.path("gone");
  for (const std::string& folder : {certs, empty}) mkdir(folder.c_str(), 0777);
  for (const char* name : {"certs/b&", "certs/c.pem", "certs/.hidden"}) dir.put(name, "");
  const std::string open = "<select name=\"c\" id=\"<\">\r\n", close = "</select>",
                    c = "<option value=\"Yy5wZW0=\">c.pem</option>\r\n",
                    b = "<option value=\"YiY=\">b&amp;</option>\r\n",
                    chosen_b = "<option value=\"YiY=\" selected>b&amp;</option>\r\n",
                    none = "<option value=\"\">&lt;none&gt;</option>\r\n",
                    chosen_none = "<option value=\"\" selected>&lt;none&gt;</option>\r\n";
  const std::string kept = open + chosen_b + c + none + close;
  const std::string nothing = open + b + c + chosen_none + close;
  EXPECT_EQ(printed_for(certs, "b&", 0), open + chosen_b + c + close);
  EXPECT_EQ(printed_for(certs, "b&", PF_KEEP_NONE_OPTION), kept);
  EXPECT_EQ(printed_for(certs, ".hidden", PF_KEEP_NONE_OPTION), nothing);
  EXPECT_EQ(printed_for(empty, "b&", 0), open + chosen_none + close);
  EXPECT_EQ(printed_for(gone, "", PF_READONLY),
            "<select name=\"c\" disabled readonly id=\"<\">\r\n" + chosen_none + close);

  dir.put("item", "b&c\n");
  const auto item = [&](const char* name, int32_t size, uint32_t flags) {
    return test::printed([&] {
      EXPECT_EQ(gen_selectbox_certs_item(dir.c_str(), name, "c", certs.c_str(), "<none>", size,
                                         " id=\"<\""),
                flags);
    });
  };
  EXPECT_EQ(item("item", 2, 0x8000), kept);
  EXPECT_EQ(item("item", 9, 0x8000), nothing);
  EXPECT_EQ(item("item", -1, 0x8000), nothing);
  EXPECT_EQ(item("certs", 9, 0x8001), printed_for(certs, "", PF_DISABLED));
}

TEST(SelectboxCerts, SavesAndStoresTheName) {
  const test::TempDir dir;
  const struct {
    const char* text;
    int32_t length;
    const char *saved, *stored;  // in a buffer of 5 bytes and a NUL that held #, and in the item
  } cases[] = {{"YS5wZW0=", 5, "a.pem", "a.pem\n"}, {"", 0, "", "\n"},
               {"YS5wZW1z", 0, "a.p##", "a.pem\n"}, {"YS5wZW1zeA==", 0, "a.p##", "\n"},
               {"YS5w!", 3, "a.p", "a.p\n"},        {"YS5wZW0", 0, "a.p##", "\n"}};
  for (const auto& c : cases) {
    char buffer[] = "#####";
    EXPECT_EQ(save_selectbox_cert(buffer, 5, c.text), c.length) << c.text;
    EXPECT_STREQ(buffer, c.saved) << c.text;
    dir.put("item", "old\n");
    EXPECT_GT(update_cert_item(dir.c_str(), "item", c.text, 5), 0);
    EXPECT_EQ(dir.get("item"), c.stored) << c.text;
  }
  EXPECT_EQ(update_cert_item(dir.c_str(), "item", "YS5wZW1zeA==", INT32_MAX), 8);
  EXPECT_EQ(update_cert_item(dir.c_str(), "item", nullptr, 5), -1);
}

}  // namespace
