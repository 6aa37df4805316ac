#include "plain.h"

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
  CHECK(
      printed("<select name=\"n\">\r\n<option value=\"0\">a</option>\r\n<option value=\"1\" "
              "selected>b</option>\r\n</select>\r\n"));
  CHECK(gen_selectbox_num(&state, "n", one_number, 1, "") == 0);
  CHECK(printed("<select name=\"n\">\r\n<option value=\"0\" selected>a</option>\r\n</select>\r\n"));
  CHECK(gen_xselectbox_num(&state, one_number, 1, " %c", 'x') == 0);
  CHECK(printed("<select x>\r\n<option value=\"0\" selected>a</option>\r\n</select>\r\n"));
  CHECK(scan_select_num("2", &current, 9, 0) == 1 && current == 2);
  state.value.text = "";
  CHECK(scan_select_text("v", &state, one_text, 1) == 1 && strcmp(state.value.text, "v") == 0);
  CHECK(gen_selectbox_text(&state, "n", one_text, NULL, 1, NULL) == 0);
  CHECK(printed("<select name=\"n\">\r\n<option value=\"v\" selected>l</option>\r\n</select>\r\n"));
  rd_selectbox_text_item(directory, "missing", &state, one_text, 1, "none");
  CHECK(state.flags == PF_DISABLED && strcmp(state.value.text, "none") == 0);
}

static void boxes(const char* directory) {
  uint32_t number = 0;
  CHECK(create_item_uint(directory, "number", 0) == 2);
  CHECK(checkbox_flags(1, 0) == PF_CHECKED);
  CHECK(gen_xcheckbox(PF_CHECKED, " name=\"%s\"", "c") == '>');
  CHECK(printed("<input type=\"checkbox\" name=\"c\" checked>"));
  CHECK(wr_checkbox_item(directory, "number", PF_CHECKED) == 2);
  CHECK(rd_checkbox_item(directory, "number", 0) == PF_CHECKED);
  CHECK(gen_numberbox("n", 2, 3, 4, 0) == '>');
  CHECK(printed("<input type=\"text\" name=\"n\" size=\"2\" maxlength=\"3\" value=\"4\">"));
  CHECK(gen_xnumberbox(3, 4, 0, " %c", 'x') == '>');
  CHECK(printed("<input type=\"text\" maxlength=\"3\" value=\"4\" x>"));
  CHECK(scan_number("9", &number, 0, 5, 0) == 1 && number == 5);
  CHECK(wr_numberbox_item(directory, "number", 6) == 2);
  CHECK(rd_numberbox_item(directory, "number", &number, 0) == 0 && number == 6);
  CHECK(gen_numberbox_item(directory, "number", "n", 2, 0, PF_DISABLED) == PF_DISABLED);
  CHECK(
      printed("<input type=\"text\" name=\"n\" size=\"2\" maxlength=\"15\" value=\"6\" disabled>"));
  CHECK(gen_json_number_item(directory, "number", "n", 0, 0) == PF_JSON_MORE);
  CHECK(printed("\"n\": 6"));
  CHECK(remove_item(directory, "number") == 0);
}

static void lists(void) {
  const char* text = "1,2";
  uint32_t first = 0, last = 0, count = 0, array[2];
  dow_entry day = {0, NULL, NULL};
  char buffer[15];
  CHECK(scan_uint(text, &first) == text + 2 && first == 1);
  CHECK(*scan_list_uint("(3,4),", &count, array, 2) == '\0' && count == 2 && array[1] == 4);
  CHECK(gen_xrangebox(5, &first, &first, NULL, 0, " %c", 'x') == '>');
  CHECK(printed("<input type=\"text\" maxlength=\"5\" x value=\"1\">"));
  CHECK(scan_range("7-5", &first, &last, 0, 9, 0) == 1 && first == 5 && last == 7);
  CHECK(scan_string(" ABC", "ab") == 1);
  CHECK(scan_time("23:45", &first, &last) == 2 && first == 23 && last == 45);
  gen_dow_table(&day, 1, "6Sat\0");
  CHECK(day.day == 6 && strcmp(day.name, "sat") == 0 && strcmp(day.label, "Sat") == 0);
  CHECK(strcmp(cron_weekdays(buffer, sizeof buffer, 5), "0,2") == 0);
}

static int32_t print_dot(uint32_t flags) {
  return printf("%c", flags == PF_SUBMIT ? '.' : '!');
}

static void plain_controls(void) {
  CHECK(gen_radio("m", 1, 1, NULL, 0) == '>');
  CHECK(printed("<input type=\"radio\" name=\"m\" value=\"1\" checked>"));
  CHECK(gen_radio_string("m", "a", "b", " id=\"m\"", 0) == '>');
  CHECK(printed("<input type=\"radio\" name=\"m\" value=\"a\" id=\"m\">"));
  gen_xbutton("OK", print_dot, PF_SUBMIT, NULL);
  CHECK(printed("<button type=\"submit\">.OK</button>"));
  gen_image("/img/", "a.png", "a", " width=\"%d\"", 16);
  CHECK(printed("<img src=\"/img/a.png\" alt=\"a\" width=\"16\">"));
  CHECK(gen_upload(0, " name=\"%s\"", "file") == '>');
  CHECK(printed("<input type=\"file\" name=\"file\">"));
}

void choice_fields(const char* directory) {
  selects(directory);
  boxes(directory);
  lists();
  plain_controls();
}
