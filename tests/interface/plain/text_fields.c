#include "plain.h"

static int32_t show(int32_t maximum, const char* value, const char* format, ...) {
  va_list arguments;
  va_start(arguments, format);
  int32_t result = vgen_xtextbox(maximum, value, 0, format, arguments);
  va_end(arguments);
  return result;
}

static void boxes(const char* directory) {
  char text[10];
  CHECK(show(8, "a", " name=\"%s\"", "n") == '>');
  CHECK(printed("<input type=\"text\" maxlength=\"8\" value=\"a\" name=\"n\">"));
  CHECK(gen_xtextbox(8, "<", PF_READONLY, " %c", 'x') == '>');
  CHECK(printed("<input type=\"text\" value=\"&lt;\" x readonly>"));
  CHECK(create_item(directory, "text", "old", 9) == 4);
  CHECK(gen_xtextbox_item(directory, "text", 8, PF_PASSWORD, NULL) == PF_PASSWORD);
  CHECK(printed("<input type=\"password\" maxlength=\"8\" value=\"&#8226;&#8226;&#8226;\">"));
  CHECK(gen_json_text("a", "b", 0) == PF_JSON_MORE);
  CHECK(gen_json_text_item(directory, "text", 8, "c", PF_JSON_MORE) == PF_JSON_MORE);
  CHECK(printed("\"b\": \"a\", \"c\": \"old\""));
  CHECK(gen_text_item(directory, "text") == 3 && printed("old"));
  CHECK(scan_textbox("a-b", 8, 0, text, 9, textbox_filter_alnum) == 1 && !strcmp(text, "ab"));
  CHECK(update_textbox(directory, "text", "new", 8) == 4);
  CHECK(rd_textbox_item(directory, "text", text, 9, 2, 0) == 0 && strcmp(text, "ne") == 0);
  CHECK(update_textbox_item(directory, "text", "n-e-w", 8, textbox_filter_alnum) == 0);
  CHECK(remove_item(directory, "text") == 0);
}

static void filters(void) {
  CHECK(textbox_filter_alnum(0, 'z') == 1);
  CHECK(textbox_filter_digit(0, 'z') == 0);
  CHECK(textbox_filter_ascii_printable(0, '~') == 1);
  CHECK(textbox_filter_dns(0, '_') == 0);
  CHECK(textbox_filter_dns6(0, ':') == 1);
  CHECK(textbox_filter_cname(0, '*') == 0);
  CHECK(textbox_filter_asn1(0, '*') == 1);
  CHECK(textbox_filter_ip6prefix(0, 'g') == 0);
  CHECK(textbox_filter_octet(1, ' ') == 1);
  CHECK(textbox_filter_ppp_username(0, '*') == 1);
  CHECK(textbox_filter_ppp_password(0, '*') == 0);
  CHECK(textbox_filter_shell_quoted(0, '$') == 0);
  CHECK(textbox_filter_smtp(0, 0xE9) == 1);
}

static void areas(const char* directory) {
  char* text = NULL;
  char unix_text[4];
  gen_textarea("text", PF_READONLY, " name=\"%s\"", "area");
  CHECK(printed("<textarea name=\"area\" readonly>text</textarea>"));
  textarea_to_unix(unix_text, "a\r\n");
  CHECK(create_item(directory, "text", "", 0) == 1);
  CHECK(update_textarea_file(directory, "text", unix_text, 5) == 3);
  CHECK(get_textarea_file(&text, directory, "text", 5) == 16 && strcmp(text, "a\n") == 0);
  free(text);
  CHECK(remove_item(directory, "text") == 0);
}

void text_fields(const char* directory) {
  boxes(directory);
  filters();
  areas(directory);
}
