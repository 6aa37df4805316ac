#include <dirent.h>
#include <gtest/gtest.h>

#include "support/page_process.h"
#include "support/temp_dir.h"
#include "tavik.h"

namespace {

std::string shown;

uint32_t entry(uintptr_t context, const char* name, int32_t position, const char* tooltip) {
  shown += std::to_string(position) + name + (tooltip == nullptr ? "" : tooltip) + "\n";
  return static_cast<uint32_t>(context);
}
int32_t link(uintptr_t context, uint32_t number, uint32_t mask, const char* tooltip) {
  shown += " " + std::to_string(context * 10000 + number * 100 + mask);
  shown += tooltip == nullptr ? "\n" : std::string(tooltip) + "\n";
  return -1;
}

std::string shown_by(const cert_dir& dir, uintptr_t mask, cert_link_callback links = link) {
  shown.clear();
  show_certificates(&dir, mask, entry, links);
  return shown;
}

TEST(CertDir, ShowsAndDeletesFilesWithTheirLinks) {
  const test::TempDir dir;
  for (const char* name : {"c/", "c/d/", "keys/"}) mkdir(dir.path(name).c_str(), 0777);
  for (const char* name : {"c/a.b.pem", "keys/a.b.key"}) dir.put(name, "17.");
  for (const char* name : {"c/ca", "keys/ca.key", "keys/a.key"}) dir.put(name, "-----");
  for (const char* name : {"c/empty.pem", "c/.hidden"}) dir.put(name, "");
  const std::string certs = dir.path("c"), slash = certs + "/", keys = dir.path("keys/");
  const cert_tool tool = {"echo", "tool", "-end"};
  const cert_link links[] = {{keys.c_str(), ".key", nullptr, "echo \"<$0>\"", "", 8, 2},
                             {"/none/", nullptr, nullptr, "true", "", 9, 5},
                             {}};
  const std::string start = " title=\"-i " + slash, end = " -- tool -noout -end\"\n",
                    a = "0a.b.pem" + start + "a.b.pem" + end, ca = "1ca" + start + "ca" + end,
                    empty = "3empty.pem" + start + "empty.pem" + end,
                    key = " title=\"&lt;sh&gt; -in " + keys;
  cert_dir list;
  for (const char* const directory : {certs.c_str(), slash.c_str()}) {
    EXPECT_EQ(cert_dir_setup(&list, directory, &tool, links), 4);
    EXPECT_EQ(shown_by(list, 0), a + ca + empty);
    EXPECT_EQ(shown_by(list, 6, nullptr), a + ca + empty);
    EXPECT_EQ(shown_by(list, 1), a + " 91705\n" + ca + " 90005\n" + empty);
    EXPECT_EQ(shown_by(list, 6), a + " 81702" + key + "a.b.key -noout\"\n 91705\n" + ca + " 80002" +
                                     key + "ca.key -noout\"\n 90005\n" + empty);
    if (directory == slash) break;
    delete_certificate(&list, 0);
    EXPECT_EQ(list.count, 4) << "nothing is put between directory and name";
    cert_dir_free(&list);
  }
  for (const int32_t position : {-1, 4, 2}) {  // 2 is the subdirectory
    delete_certificate(&list, position);
    EXPECT_EQ(list.count, 4) << position;
  }
  delete_certificate(&list, 0);
  EXPECT_EQ(list.count, 3);
  EXPECT_STREQ(list.list[1]->d_name, "d");
  EXPECT_TRUE(!dir.get("keys/a.b.key") && dir.get("keys/a.key") && dir.get("keys/ca.key"));
  delete_certificate(&list, 0);
  EXPECT_FALSE(dir.get("keys/ca.key"));
  list.tool = nullptr;
  EXPECT_EQ(shown_by(list, 6), "");
  cert_dir_free(&list);
  cert_dir_free(&list);
  EXPECT_EQ(list.count, 0);
}

TEST(CertDir, NothingToList) {
  const cert_tool tool = {nullptr, "echo", ""};
  cert_dir list;
  EXPECT_EQ(cert_dir_setup(&list, "/none", &tool, nullptr), -1);
  delete_certificate(&list, 0);
  cert_dir_free(&list);
  EXPECT_EQ(list.count, -1);
  EXPECT_EQ(shown_by(list, 6), "");
  EXPECT_EQ(cert_dir_setup(&list, test::TempDir().c_str(), &tool, nullptr), 0);
  cert_dir_free(&list);
}

std::string tooltip(const std::string& path, const char* wrapper, const char* command,
                    const char* options) {
  char* title = nullptr;
  const int32_t length = asprint_tooltip(&title, path.c_str(), wrapper, command, options);
  const std::string text = title == nullptr ? "none" : title;
  EXPECT_EQ(length, title == nullptr ? -1 : static_cast<int32_t>(text.size()));
  free(title);
  return text;
}

TEST(CertTooltip, OfRealCertificatesAndKeys) {
  const test::TempDir dir;
  dir.put("run", "#!/bin/sh\nfile=$2\nshift 3\nexec \"$@\" <\"$file\"\n");
  const std::string run = "sh " + dir.path("run");
  const auto openssl = [](std::vector<std::string> arguments) {
    return test::run_page("/usr/bin/openssl", {{}, "", 1, std::move(arguments)}).output;
  };
  for (const std::string name : {"plain", "M\xC3\xBCller's  \xE2\x82\xAC (1)"}) {
    const std::string cert = dir.path(name + ".pem"), key = dir.path(name + ".key");
    openssl({"genpkey", "-algorithm", "ED25519", "-out", key});
    openssl({"req", "-x509", "-key", key, "-subj", "/O=R&D", "-days", "30", "-out", cert});
    const std::string end = openssl({"x509", "-in", cert, "-noout", "-enddate"});
    const std::string title =
        " title=\"subject=O = R&amp;D\n" + end.substr(0, end.size() - 1) + "\"";
    EXPECT_EQ(tooltip(cert, nullptr, "openssl x509", "-subject -enddate"), title);
    EXPECT_EQ(tooltip(cert, run.c_str(), "openssl x509", "-subject -enddate"), title);
    EXPECT_EQ(tooltip(key, nullptr, "openssl pkey", "-text | sed 1q"),
              " title=\"ED25519 Private-Key:\"");
    EXPECT_EQ(tooltip(cert, nullptr, "openssl pkey", "2>&-"), "none");
    EXPECT_EQ(tooltip(cert, nullptr, "echo", nullptr), "none");
  }
}

}  // namespace
