#include <gtest/gtest.h>

#include "support/page_file.h"
#include "support/temp_dir.h"
#include "tavik.h"

namespace {

TEST(PageFrame, PrintsAPage) {
  const test::TempDir dir;
  dir.put("item", "<\u00E9tude\n"), dir.put("one", "a{}"), dir.put("two", "b<{}\n");
  const std::string paths[] = {dir.path("none"), dir.path("one"), dir.path("two")};
  const char *const none = paths[0].c_str(), *one = paths[1].c_str(), *two = paths[2].c_str(),
                    *end = nullptr;
  test::expect_page("output/page_frame.html", [=, &dir] {
    print_refresh("a", "<b", 3, nullptr);
    print_refresh(nullptr, nullptr, 0, "/%d", 7);
    print_head_p1("a", "<b", "&c");
    print_head_refresh(5, nullptr);
    print_head_refresh(3, "%s", "");
    print_head_refresh(UINT32_MAX, "/x?a=%d%s", 1, "&\"");
    print_head_css(none, one, two, end), print_head_css(none, end), print_head_css(end);
    print_head_script(SCRIPT_OPEN | SCRIPT_FILE, none), print_head_script(0, "x<y");
    print_head_script(SCRIPT_CLOSE, nullptr);
    print_head_script(SCRIPT_OPEN | SCRIPT_CLOSE, "x");
    print_head_script(SCRIPT_OPEN | SCRIPT_FILE, two);
    print_head_script(SCRIPT_CLOSE | SCRIPT_FILE, one);
    print_head_script(SCRIPT_OPEN | SCRIPT_CLOSE | SCRIPT_FILE, none);
    print_head_script(SCRIPT_FILE, nullptr);
    print_head_p2("a<b", " class=\"x\"");
    print_timeline(dir.c_str(), "item", 1, "a&b");
    print_timeline(dir.c_str(), "item", -4, nullptr);
    print_timeline(dir.c_str(), "none", 4, "");
    print_foot();
    print_head_p2(nullptr, nullptr);
  });
}

}  // namespace
