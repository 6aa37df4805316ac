#include <dirent.h>
#include <gtest/gtest.h>

#include "support/page_file.h"
#include "support/rows.h"
#include "support/temp_dir.h"
#include "tavik.h"

namespace {

uint32_t entry(uintptr_t context, const char* name, int32_t position, const char* tooltip) {
  printf("%d %s%s\n", position, name, tooltip == nullptr ? "" : tooltip);
  return static_cast<uint32_t>(context);
}
int32_t link(uintptr_t context, uint32_t number, uint32_t mask, const char* tooltip) {
  return printf("link %c %u %u%s\n", static_cast<char>(context), number, mask,
                tooltip == nullptr ? "" : tooltip);
}

void show(const cert_dir& list, uintptr_t mask, cert_link_callback links = link) {
  printf("%d for %d\n", list.count, static_cast<int>(mask));
  show_certificates(&list, mask, entry, links);
}

void offer(const char* folder, const char* selected, uint32_t flags) {
  gen_selectbox_certs(folder, "c", selected, "<none>", flags, " id=\"<\"");
  putchar('\n');
}

void offer_item(const char* name, int32_t size) {
  printf("%X\n", gen_selectbox_certs_item(".", name, nullptr, "o/", "-", size, nullptr));
}

TEST(Certificates, PrintAPage) {
  const test::TempDir dir;
  const std::filesystem::path before = std::filesystem::current_path();
  std::filesystem::current_path(dir.c_str());
  for (const char* folder : {"c", "c/d", "keys", "o"}) mkdir(folder, 0777);
  for (const char* name : {"c/a.b.pem", "keys/a.b.key"}) dir.put(name, "17.");
  // The second path ends where its block does.
  for (const char* name :
       {"c/ca's  longer name (\u00E4)", "keys/ca's  longer name (\u00E4).key", "keys/a.key"}) {
    dir.put(name, "-----");
  }
  for (const char* name : {"c/empty.pem", "c/.hidden", "o/b&", "o/c.pem", "o/.hidden"}) {
    dir.put(name, "");
  }
  dir.put("item", "b&c\n");
  const cert_tool tool = {"echo", "tool", "-end"};
  const cert_link links[] = {{"keys/", ".key", nullptr, "echo \"<$0>\"", "", 'A', 2},
                             {"/none/", nullptr, nullptr, "true", "", 'B', 5},
                             {}};
  cert_dir list;
  test::expect_page("auth/certificates.html", [&] {
    cert_dir_setup(&list, "c", &tool, links);
    delete_certificate(&list, 0);  // nothing is put between directory and name
    show(list, 0);                 // but a slash here
    cert_dir_free(&list);
    EXPECT_EQ(cert_dir_setup(&list, "c/", &tool, links), 4);
    for (const int32_t position : {-1, 4, 2}) delete_certificate(&list, position);
    show(list, 6, nullptr), show(list, 1), show(list, 6);
    delete_certificate(&list, 0), show(list, 0);
    EXPECT_TRUE(!dir.get("keys/a.b.key") && dir.get("keys/a.key"));
    delete_certificate(&list, 0);
    EXPECT_FALSE(dir.get("keys/ca's  longer name (\u00E4).key"));
    list.tool = nullptr;
    show(list, 6);
    for (int i = 0; i < 2; ++i) cert_dir_free(&list);
    show(list, 6);
    EXPECT_EQ(cert_dir_setup(&list, "/none", &tool, nullptr), -1);
    delete_certificate(&list, 0), cert_dir_free(&list), show(list, 6);

    offer("o", "b&", 0), offer("o", ".hidden", PF_KEEP_NONE_OPTION);
    offer("/none", "", PF_READONLY);
    offer_item("item", 2), offer_item("item", 9), offer_item("item", -1), offer_item("o", 9);
  });
  std::filesystem::current_path(before);
}

TEST(Certificates, NeedAllOfATooltipButTheWrapper) {
  char* out = nullptr;
  EXPECT_EQ(asprint_tooltip(&out, nullptr, "", "echo", "") +
                asprint_tooltip(&out, "", "", "echo", nullptr),
            -2);
  EXPECT_EQ(
      asprint_tooltip(&out, "", "", nullptr, "") + asprint_tooltip(nullptr, "", "", "echo", ""),
      -2);
  EXPECT_EQ(asprint_tooltip(&out, "", nullptr, "true", ""), -1) << "which prints nothing";
  EXPECT_EQ(out, nullptr);
}

TEST(Certificates, AreSavedAndStoredByName) {
  // What is saved in a buffer of 5 bytes and a NUL that held #, and what is stored.
  const test::TempDir dir;
  const std::pair<const char*, const char*> cases[] = {
      {"YS5wZW0=", "5 a.pem a.pem\n"}, {"", "0  \n"},
      {"YS5wZW1z", "0 a.p## a.pem\n"}, {"YS5wZW1zeA==", "0 a.p## \n"},
      {"YS5w!", "3 a.p a.p\n"},        {"YS5wZW0", "0 a.p## \n"}};
  for (const auto& [text, expected] : cases) {
    char buffer[] = "#####";
    const int32_t length = save_selectbox_cert(buffer, 5, text);
    dir.put("item", "old\n");
    EXPECT_GT(update_cert_item(dir.c_str(), "item", text, 5), 0);
    EXPECT_EQ(test::joined(length, buffer, *dir.get("item")), expected);
  }
  EXPECT_EQ(update_cert_item(dir.c_str(), "item", "YS5wZW1zeA==", INT32_MAX), 8);
  EXPECT_EQ(update_cert_item(dir.c_str(), "item", nullptr, 5), -1);
  EXPECT_EQ(save_selectbox_cert(nullptr, 5, "YS5w"), 0);
}

}  // namespace
