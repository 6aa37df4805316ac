#include "plain.h"

#include <fcntl.h>

static void texts(void) {
  const char* text = "\xC3\xA9";
  const char* cursor = text;
  uint32_t bytes = 0;
  char buffer[8] = "";
  char* heap = NULL;
  CHECK(utf8_to_ucs2(&cursor, UINT32_MAX) == 0xE9);
  CHECK(ucs2_to_utf8(buffer, 8, 0xE9) == buffer + 2);
  CHECK(utf8_length(text, 9, &bytes) == 1 && bytes == 2);
  CHECK(strsncpy(buffer, sizeof buffer, "abc") == 3);
  CHECK(print_mem("ab", 2) == 2);
  CHECK(print_str("abc") == 3);
  CHECK(print_str_xcrlf("a\n") == 3);
  CHECK(html_print_ucs2('<') == 4);
  CHECK(html_print_text(text) == 8);
  CHECK(html_print_text_limit(1, "ab", UINT32_MAX) == 1);
  CHECK(html_print_text_nl("\n") == 4);
  CHECK(printed("ababca\r\n&lt;&eacute;a<br>"));
  CHECK(html_asprint_text(&heap, text) == 4096 && strcmp(heap, "&eacute;") == 0);
  free(heap);
  CHECK(asprint_title(&heap, "a") == 10 && strcmp(heap, " title=\"a\"") == 0);
  free(heap);
  print_num_str_mark("1234", ",");
  CHECK(print_fsize(1) == 12);
  CHECK(printed("1,2341&nbsp;Bytes"));
}

static void formats(void) {
  CHECK(html_printf(1, "<%s|%u>", "&", 7U) == 9);
  print_flags(PF_CHECKED | PF_DISABLED);
  print_json_flags(PF_JSON_MORE);
  CHECK(printed("<&amp;|7> checked disabled, "));
  CHECK(strcmp(html_attr(1), " disabled") == 0);
  CHECK(print_xstr("<", PF_RAW) == 1 && printed("<"));
  CHECK(get_print_flags(PF_RAW, "Windows") == (PF_RAW | PF_CRLF));
}

static void frame(const char* directory) {
  print_head_p1("a", NULL, "b");
  CHECK(printed("a<html>\r\n<head>\r\nb"));
  print_head_refresh(5, "/%s", "x");
  CHECK(printed("<meta http-equiv=\"refresh\" content=\"5; URL=/x\">\r\n"));
  print_head_css("missing", NULL);
  print_head_script(SCRIPT_OPEN | SCRIPT_CLOSE, "f()");
  CHECK(printed("<script>\r\nf()</script>\r\n"));
  print_head_p2("t", " c");
  print_foot();
  CHECK(printed("<title>t</title>\r\n</head>\r\n<body c>\r\n</body>\r\n</html>\r\n"));
  print_refresh("a", NULL, 5, "x");
  CHECK(
      printed("a<html>\r\n<head>\r\n<meta http-equiv=\"refresh\" content=\"5; "
              "URL=x\">\r\n</head>\r\n</html>\r\n"));
  print_timeline(directory, "missing", 9, "now");
  CHECK(printed(
      "<table class=\"HeadTable\"><tr><td class=\"HeadLeft\"></td><td "
      "class=\"HeadRight\">now<script>document.write(fl_time());</script></td></tr></table>\r\n"));
}

void output(const char* directory) {
  texts();
  formats();
  frame(directory);
  CHECK(create_item(directory, "file", "a", 1) == 2);
  int32_t fd = open_path_name(directory, "file", O_RDONLY, 0);
  CHECK(print_fd(fd) == 2 && printed("a\n"));
  close(fd);
  CHECK(remove_item(directory, "file") == 0);
}
