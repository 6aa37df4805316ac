#include "plain.h"

static int32_t show(int32_t maximum, const char* value, const char* format, ...) {
  va_list arguments;
  va_start(arguments, format);
  int32_t result = vgen_xtextbox(maximum, value, 0, format, arguments);
  va_end(arguments);
  return result;
}

static void text_boxes(const char* directory) {
  char text[10];
  CHECK(show(8, "a", " name=\"%s\"", "n") == '>');
  CHECK(gen_xtextbox(8, "<", PF_READONLY, " %c", 'x') == '>');
  CHECK(create_item(directory, "text", "old", 9) == 4);
  CHECK(gen_xtextbox_item(directory, "text", 8, PF_PASSWORD, NULL) == PF_PASSWORD);
  CHECK(gen_json_text("a", "b", 0) == PF_JSON_MORE);
  CHECK(gen_json_text_item(directory, "text", 8, "c", PF_JSON_MORE) == PF_JSON_MORE);
  CHECK(gen_text_item(directory, "text") == 3);
  CHECK(scan_textbox("a-b", 8, 0, text, 9, textbox_filter_alnum) == 1 && !strcmp(text, "ab"));
  CHECK(update_textbox(directory, "text", "new", 8) == 4);
  CHECK(rd_textbox_item(directory, "text", text, 9, 2, 0) == 0 && strcmp(text, "ne") == 0);
  CHECK(update_textbox_item(directory, "text", "n-e-w", 8, textbox_filter_alnum) == 0);
  CHECK(remove_item(directory, "text") == 0);
}

static void filters(void) {
  CHECK(textbox_filter_alnum(0, 'z') && !textbox_filter_digit(0, 'z'));
  CHECK(textbox_filter_ascii_printable(0, '~') && !textbox_filter_dns(0, '_'));
  CHECK(textbox_filter_dns6(0, ':') && !textbox_filter_cname(0, '*'));
  CHECK(textbox_filter_asn1(0, '*') && !textbox_filter_ip6prefix(0, 'g'));
  CHECK(textbox_filter_octet(1, ' ') && !textbox_filter_ppp_password(0, '*'));
  CHECK(textbox_filter_ppp_username(0, '*') && !textbox_filter_shell_quoted(0, '$'));
  CHECK(textbox_filter_smtp(0, 0xE9));
}

static void text_areas(const char* directory) {
  char* text = NULL;
  char unix_text[4];
  gen_textarea("text", PF_READONLY, " name=\"%s\"", "area");
  textarea_to_unix(unix_text, "a\r\n");
  CHECK(create_item(directory, "text", "", 0) == 1);
  CHECK(update_textarea_file(directory, "text", unix_text, 5) == 3);
  CHECK(get_textarea_file(&text, directory, "text", 5) == 16 && strcmp(text, "a\n") == 0);
  free(text);
  CHECK(remove_item(directory, "text") == 0);
}

static int32_t two_numbers(void* context, uint32_t operation, uint32_t index, uintptr_t arg) {
  if (operation == SELECT_OP_VALUE) return selectbox_num_show_value(index, *(uint32_t*)context);
  if (operation == SELECT_OP_LABEL) printf("%c", (char)('a' + index));
  return operation == SELECT_OP_SHOW && index >= arg ? -1 : 1;
}

static int32_t one_number(uint32_t operation, uint32_t index, uintptr_t arg) {
  uint32_t current = index;
  return two_numbers(&current, operation, index, arg);
}

static int32_t one_text(uint32_t index, uintptr_t arg, selectbox_text_option* out) {
  out->value = "v";
  out->label = "l";
  return index < arg ? 1 : -1;
}

static void selects(const char* directory) {
  uint32_t current = 1;
  select_state state = {0, {0}};
  gen_selectbox_class(&current, "n", two_numbers, 2, 9, 0);
  CHECK(gen_selectbox_num(&state, "n", one_number, 1, "") == 0);
  CHECK(gen_xselectbox_num(&state, one_number, 1, " %c", 'x') == 0);
  CHECK(scan_select_num("2", &current, 9, 0) == 1 && current == 2);
  state.value.text = "";
  CHECK(scan_select_text("v", &state, one_text, 1) == 1 && strcmp(state.value.text, "v") == 0);
  CHECK(gen_selectbox_text(&state, "n", one_text, NULL, 1, NULL) == 0);
  rd_selectbox_text_item(directory, "missing", &state, one_text, 1, "none");
  CHECK(state.flags == PF_DISABLED && strcmp(state.value.text, "none") == 0);
}

static void number_boxes(const char* directory) {
  uint32_t number = 0;
  CHECK(create_item_uint(directory, "number", 0) == 2);
  CHECK(checkbox_flags(1, 0) == PF_CHECKED && gen_xcheckbox(PF_CHECKED, " %c", 'c') == '>');
  CHECK(wr_checkbox_item(directory, "number", PF_CHECKED) == 2);
  CHECK(rd_checkbox_item(directory, "number", 0) == PF_CHECKED);
  CHECK(gen_numberbox("n", 2, 3, 4, 0) == '>' && gen_xnumberbox(3, 4, 0, " %c", 'x') == '>');
  CHECK(scan_number("9", &number, 0, 5, 0) == 1 && number == 5);
  CHECK(wr_numberbox_item(directory, "number", 6) == 2);
  CHECK(rd_numberbox_item(directory, "number", &number, 0) == 0 && number == 6);
  CHECK(gen_numberbox_item(directory, "number", "n", 2, 0, PF_DISABLED) == PF_DISABLED);
  CHECK(gen_json_number_item(directory, "number", "n", 0, 0) == PF_JSON_MORE);
  CHECK(remove_item(directory, "number") == 0);
}

static int32_t print_dot(uint32_t flags) {
  return printf("%c", flags == PF_SUBMIT ? '.' : '!');
}

static void lists_and_controls(void) {
  const char* text = "1,2";
  uint32_t first = 0, last = 0, count = 0, array[2];
  dow_entry day = {0, NULL, NULL};
  char buffer[15];
  CHECK(scan_uint(text, &first) == text + 2 && first == 1);
  CHECK(*scan_list_uint("(3,4),", &count, array, 2) == '\0' && count == 2 && array[1] == 4);
  CHECK(gen_xrangebox(5, &first, &first, NULL, 0, " %c", 'x') == '>');
  CHECK(scan_range("7-5", &first, &last, 0, 9, 0) == 1 && first == 5 && last == 7);
  CHECK(scan_string(" ABC", "ab") == 1);
  CHECK(scan_time("23:45", &first, &last) == 2 && first == 23 && last == 45);
  gen_dow_table(&day, 1, "6Sat\0");
  CHECK(day.day == 6 && strcmp(day.name, "sat") == 0 && strcmp(day.label, "Sat") == 0);
  CHECK(strcmp(cron_weekdays(buffer, sizeof buffer, 5), "0,2") == 0);
  CHECK(gen_radio("m", 1, 1, NULL, 0) == '>');
  CHECK(gen_radio_string("m", "a", "b", " id=\"m\"", 0) == '>');
  gen_xbutton("OK", print_dot, PF_SUBMIT, NULL);
  gen_image("/img/", "a.png", "a", " width=\"%d\"", 16);
  CHECK(gen_upload(0, " name=\"%s\"", "file") == '>');
}

static void addresses(const char* directory) {
  uint32_t ip = 0;
  ipv4_cidr net = {0, 0};
  struct sockaddr mac = {0};
  char text[18];
  CHECK(create_item(directory, "ip", "", 0) == 1);
  CHECK(scan_ipv4("10.0.0.1", &ip, 0) == 1);
  CHECK(update_ipv4box_item(directory, "ip", &ip) == 9);
  gen_ipv4box("ip", 0, &ip, 0);
  gen_xipv4box(-1, &ip, 0, NULL);
  CHECK(valid_ipv4_addr(&ip, ip, ip) == 1 && gen_prefix(gen_netmask(9)) == 9);
  CHECK(scan_ipv4_netmask("255.0.0.0", &ip, 9, 32) == 1);
  CHECK(rd_ipv4box_item(directory, "ip", &ip, 0) == 0 && ip != 0);
  CHECK(scan_ipv4cidr("10.0.0.1/8", &net, 0, 1) == 1);
  CHECK(update_ipv4cidr_item(directory, "ip", &net) == 11);
  CHECK(rd_ipv4cidr_item(directory, "ip", &net, 0) == 0 && net.prefix == 8);
  gen_ipv4cidr("net", 0, &net, 0);
  gen_xipv4cidr(-1, &net, 0, " name=\"%s\"", "net");
  CHECK(remove_item(directory, "ip") == 0);
  CHECK(scan_macaddr(&mac, "0:1:2") == 1 && mac_isvalid(&mac) == 1);
  CHECK(strcmp(mac_ntop(&mac, ':', text, sizeof text), "00:01:02:00:00:00") == 0);
  CHECK(*if_hwaddr_ntop("", ':', text, sizeof text) == '\0');
  gen_xmacbox(0, &mac, PF_DISABLED, NULL);
}

void fields(const char* directory) {
  text_boxes(directory);
  filters();
  text_areas(directory);
  selects(directory);
  number_boxes(directory);
  lists_and_controls();
  addresses(directory);
}
