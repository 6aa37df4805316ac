#include <gtest/gtest.h>

#include <array>

#include "support/capture.h"
#include "support/temp_dir.h"
#include "tavik.h"

namespace {

using test::printed;

TEST(PageFrame, PrintsAPageWithRefreshes) {
  EXPECT_EQ(
      "a<b<html>\r\n<head>\r\n&c"
      "<meta http-equiv=\"refresh\" content=\"5\">\r\n"
      "<meta http-equiv=\"refresh\">\r\n"
      "<meta http-equiv=\"refresh\" content=\"4294967295; URL=/x?a=1&\"\">\r\n"
      "<title>a&lt;b</title>\r\n</head>\r\n<body class=\"x\">\r\n</body>\r\n</html>\r\n",
      printed([] {
        print_head_p1("a", "<b", "&c");
        print_head_refresh(5, nullptr);
        print_head_refresh(3, "%s", "");
        print_head_refresh(UINT32_MAX, "/x?a=%d%s", 1, "&\"");
        print_head_p2("a<b", " class=\"x\"");
        print_foot();
      }));
  EXPECT_EQ("<html>\r\n<head>\r\n</head>\r\n<body>\r\n", printed([] {
              print_head_p1(nullptr, nullptr, nullptr);
              print_head_p2(nullptr, nullptr);
            }));
  EXPECT_EQ(
      "a<b<html>\r\n<head>\r\n</head>\r\n</html>\r\n<html>\r\n<head>\r\n"
      "<meta http-equiv=\"refresh\" content=\"0; URL=/7\">\r\n</head>\r\n</html>\r\n",
      printed([] {
        print_refresh("a", "<b", 3, nullptr);
        print_refresh(nullptr, nullptr, 0, "/%d", 7);
      }));
}

TEST(PageFrame, InlinesStyleAndScript) {
  const test::TempDir dir;
  dir.put("one", "a{}");
  dir.put("two", "b<{}\n");
  const std::string paths[] = {dir.path("one"), dir.path("two"), dir.path("none")};
  const auto [one, two, none] = std::array{paths[0].c_str(), paths[1].c_str(), paths[2].c_str()};
  const auto css = [](auto... path) {
    return printed([=] { print_head_css(path..., static_cast<const char*>(nullptr)); });
  };
  EXPECT_EQ("<style>\r\na{}b<{}\n</style>\r\n", css(none, one, two));
  EXPECT_EQ("", css(none, none) + css());
  const auto script = [](uint32_t flags, const char* path) {
    return printed([=] { print_head_script(flags, path); });
  };
  EXPECT_EQ("<script>\r\n", script(SCRIPT_OPEN | SCRIPT_FILE, none));
  EXPECT_EQ("x<y", script(0, "x<y"));
  EXPECT_EQ("</script>\r\n", script(SCRIPT_CLOSE, nullptr));
  EXPECT_EQ("<script>\r\nx</script>\r\n", script(SCRIPT_OPEN | SCRIPT_CLOSE, "x"));
  EXPECT_EQ("<script>\r\nb<{}\n", script(SCRIPT_OPEN | SCRIPT_FILE, two));
  EXPECT_EQ("a{}</script>\r\n", script(SCRIPT_CLOSE | SCRIPT_FILE, one));
  EXPECT_EQ("", script(SCRIPT_OPEN | SCRIPT_CLOSE | SCRIPT_FILE, none));
  EXPECT_EQ("", script(SCRIPT_FILE, nullptr));
}

TEST(PageFrame, PrintsTheHeadLine) {
  const test::TempDir dir;
  dir.put("item", "<\u00E9tude\n");
  const auto line = [](const std::string& left, const std::string& right) {
    return "<table class=\"HeadTable\"><tr><td class=\"HeadLeft\">" + left +
           "</td><td class=\"HeadRight\">" + right +
           "<script>document.write(fl_time());</script></td></tr></table>\r\n";
  };
  EXPECT_EQ(line("&lt;", "a&amp;b"),
            printed([&] { print_timeline(dir.c_str(), "item", 1, "a&b"); }));
  EXPECT_EQ(line("", ""), printed([&] { print_timeline(dir.c_str(), "none", 4, nullptr); }));
  EXPECT_EQ(line("", ""), printed([&] { print_timeline(dir.c_str(), "item", -4, ""); }));
}

}  // namespace
