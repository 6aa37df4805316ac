#include "plain.h"

static int32_t count_query(void* context, cgi_attr* attrs, int32_t count, int32_t kind) {
  *(int32_t*)context = kind;
  return count + (attrs->parent == NULL ? 0 : 100);
}

static void request(void) {
  int32_t kind = -1;
  int ends[2];
  char line[8];
  setenv("REQUEST_METHOD", "GET", 1);
  setenv("QUERY_STRING", "a=1&b=2", 1);
  CHECK(getcgivars(&kind, NULL, count_query) == 2 && kind == CGI_KIND_QUERY);
  CHECK(pipe(ends) == 0);
  int32_t fd = ends[1];
  CHECK(mpart_write_fd(&fd, "a\r\nbody\r\n--B--\r\n", 16) == 0);
  CHECK(full_line_read_fd(ends[0], line, sizeof line) == 1 && strcmp(line, "a") == 0);
  CHECK(scan_boundary(ends[0], "B", 3, mpart_fwrite, stdout) == 3);
  CHECK(mpart_fwrite(stdout, "!", 1) == 0);
  CHECK(strcmp(valid_filename("C:\\a"), "a") == 0);
  CHECK(close(ends[0]) == 0 && close(ends[1]) == 0);
}

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
  CHECK(print_mem("ab", 2) == 2 && print_str("abc") == 3 && print_str_xcrlf("a\n") == 3);
  CHECK(html_print_ucs2('<') == 4 && html_print_text(text) == 8);
  CHECK(html_print_text_limit(1, "ab", UINT32_MAX) == 1 && html_print_text_nl("\n") == 4);
  CHECK(html_asprint_text(&heap, text) == 4096 && strcmp(heap, "&eacute;") == 0);
  free(heap);
  CHECK(asprint_title(&heap, "a") == 10 && strcmp(heap, " title=\"a\"") == 0);
  free(heap);
  print_num_str_mark("1234", ",");
  CHECK(print_fsize(1) == 12);
  CHECK(html_printf(1, "<%s|%u>", "&", 7U) == 9);
  print_flags(PF_CHECKED | PF_DISABLED);
  print_json_flags(PF_JSON_MORE);
  CHECK(strcmp(html_attr(1), " disabled") == 0);
  CHECK(print_xstr("<", PF_RAW) == 1);
  CHECK(get_print_flags(PF_RAW, "Windows") == (PF_RAW | PF_CRLF));
}

static void frame(const char* directory) {
  print_head_p1("a", NULL, "b");
  print_head_refresh(5, "/%s", "x");
  print_head_css("missing", NULL);
  print_head_script(SCRIPT_OPEN | SCRIPT_CLOSE, "f()");
  print_head_p2("t", " c");
  print_foot();
  print_refresh("a", NULL, 5, "x");
  print_timeline(directory, "missing", 9, "now");
  CHECK(create_item(directory, "file", "a", 1) == 2);
  int32_t fd = open_path_name(directory, "file", O_RDONLY, 0);
  CHECK(print_fd(fd) == 2 && close(fd) == 0 && remove_item(directory, "file") == 0);
}

void request_and_output(const char* directory) {
  request();
  texts();
  frame(directory);
}
