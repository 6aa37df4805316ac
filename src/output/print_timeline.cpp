#include "output/html_print_item.h"
#include "tavik.h"

void print_timeline(const char* directory, const char* name, int32_t count, const char* text) {
  print_str("<table class=\"HeadTable\"><tr><td class=\"HeadLeft\">");
  tavik::html_print_item(directory, name, count);
  print_str("</td><td class=\"HeadRight\">");
  html_print_text(text);
  print_str("<script>document.write(fl_time());</script></td></tr></table>\r\n");
}
