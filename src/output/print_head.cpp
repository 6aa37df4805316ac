#include "tavik.h"

void print_head_p1(const char* first, const char* second, const char* third) {
  print_str(first);
  print_str(second);
  print_str("<html>\r\n<head>\r\n");
  print_str(third);
}

void print_head_p2(const char* title, const char* attributes) {
  if (title != nullptr) {
    print_str("<title>");
    html_print_text(title);
    print_str("</title>\r\n");
  }
  print_str("</head>\r\n<body");
  print_str(attributes);
  print_str(">\r\n");
}

void print_foot(void) {
  print_str("</body>\r\n</html>\r\n");
}
