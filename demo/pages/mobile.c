/*
 * "Mobile": the country, its operators, and the text of the alarm message with what it takes as a
 * short message. ?format=json&message=TEXT measures a text; message.js does that while it is typed.
 */
#include <stdlib.h>
#include <string.h>

#include "shared/page.h"
#include "shared/short_message.h"
#include "shared/text_filters.h"
#include "shared/text_select.h"

enum { MESSAGE_CHARACTERS = 480, MESSAGE_SIZE = 3 * MESSAGE_CHARACTERS };

enum { COUNTRY, OPERATOR, MESSAGE, SETTING_COUNT };

static const setting settings[SETTING_COUNT] = {
    [COUNTRY] = {.name = "country", .label = "Country"},
    [OPERATOR] = {.name = "operator", .label = "Operator"},
    [MESSAGE] = {.name = "message", .label = "Alarm message"},
};

/* The columns of the countries' file. */
enum { CODE, COUNTRY_NAME, MOBILE_CODE, COLUMN_COUNT, CODE_SIZE = 2 };

static db_row* countries;

/* The operators of the country that is stored. */
static int32_t operator_row(uint32_t index, uintptr_t arg, selectbox_text_option* out) {
  char code[CODE_SIZE + 1];
  const copn_entry* entry = copn_ptr();
  (void)arg;
  if (index == 0) {
    *out = (selectbox_text_option){"auto", "Automatic"};
    return 1;
  }
  while (entry != NULL && --index > 0) entry = entry->next;
  if (entry == NULL) return -1;
  read_item(page_state(), settings[COUNTRY].name, code, CODE_SIZE);
  const db_row* country = search_db(countries, CODE, code);
  if (country == NULL || country->used <= MOBILE_CODE) return 0;
  const char* prefix = country->columns[MOBILE_CODE];
  *out = (selectbox_text_option){entry->numeric, entry->name};
  return prefix != NULL && strncmp(entry->numeric, prefix, strlen(prefix)) == 0;
}

/* A text area loses its first line feed on the way to a browser and back, so none is kept there. */
static const char* clean_message(const char* text) {
  static char clean[MESSAGE_SIZE + 1];
  scan_textbox(text, MESSAGE_CHARACTERS, 0, clean, MESSAGE_SIZE, text_filter_lines);
  return clean + strspn(clean, "\n");
}

static int32_t store(uint32_t index, const char* text) {
  const char* name = settings[index].name;
  switch (index) {
    case COUNTRY:
      if (search_db(countries, CODE, text) == NULL) return -1;
      return update_item(page_state(), name, text, CODE_SIZE);
    case OPERATOR:
      return text_select_store(name, text, operator_row, 0, "auto");
    default:
      return update_textarea_file(page_state(), name, clean_message(text), MESSAGE_CHARACTERS);
  }
}

static int32_t save(void* context, cgi_attr* attrs, int32_t count, int32_t kind) {
  (void)kind;
  page_store_form(context, attrs, count, settings, SETTING_COUNT, store);
  return 0;
}

static sms_size asked;

static int32_t read_query(void* context, cgi_attr* attrs, int32_t count, int32_t kind) {
  for (int32_t i = 0; i < count; i++) {
    if (strcmp(attrs[i].name, settings[MESSAGE].name) != 0) continue;
    asked = sms_measure(clean_message(attrs[i].value));
  }
  return page_read_outcome(context, attrs, count, kind);
}

/* No character that JSON would have escaped is one that cannot be sent. */
static void print_json(void) {
  printf(
      "Content-Type: application/json\r\nCache-Control: no-store\r\n\r\n"
      "{\"septets\": %u, \"messages\": %u",
      asked.septets, asked.messages);
  gen_json_text(asked.refused, "refused", PF_JSON_MORE);
  print_str("}\r\n");
}

/* The control's name goes out as it is, and so can bring the id along. */
static void print_country(void) {
  page_label(settings[COUNTRY].name, settings[COUNTRY].label);
  gen_selectbox_dbase_item(countries, CODE, COUNTRY_NAME, page_state(), settings[COUNTRY].name,
                           "country\" id=\"country", CODE_SIZE);
  page_field_end();
}

static void print_message(void) {
  const char* name = settings[MESSAGE].name;
  char* text = NULL;
  int32_t size = get_textarea_file(&text, page_state(), name, MESSAGE_CHARACTERS);
  sms_size measured = sms_measure(text != NULL ? text : "");
  page_label(name, settings[MESSAGE].label);
  gen_textarea(text, size > 0 ? 0 : PF_DISABLED,
               " id=\"%s\" name=\"%s\" rows=\"4\" maxlength=\"%d\"", name, name,
               MESSAGE_CHARACTERS);
  printf(
      "<output for=\"%s\" class=\"quiet\">Septets: <b id=\"septets\">%u</b>, short messages: "
      "<b id=\"messages\">%u</b>, cannot be sent: <b id=\"refused\">",
      name, measured.septets, measured.messages);
  html_print_text(*measured.refused != '\0' ? measured.refused : "none");
  print_str("</b></output>\r\n");
  page_field_end();
  free(text);
}

static void print_page(const outcome* result) {
  page_begin_scripted("mobile", "Mobile", PAGE_ASSETS "/message.js");
  page_print_outcome(result, settings, SETTING_COUNT);
  page_form("mobile");
  print_country();
  page_label(settings[OPERATOR].name, settings[OPERATOR].label);
  text_select_print(settings[OPERATOR].name, operator_row, 0, "auto");
  page_field_end();
  print_message();
  page_form_end();
  page_end();
}

int main(void) {
  outcome result = {0, 0, 0};
  page_guard();
  read_db_file(PAGE_ASSETS "/countries.txt", COLUMN_COUNT, &countries);
  read_copn_file(PAGE_ASSETS "/operators.txt");
  getcgivars(&result, save, page_is_post() ? NULL : read_query);
  if (page_is_post()) {
    page_redirect("mobile", &result);
  } else if (page_asks_for("json")) {
    print_json();
  } else {
    print_page(&result);
  }
  free_copn();
  free_db(countries);
  return 0;
}
