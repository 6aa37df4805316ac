/*
 * "Mobile": the country, its operators, and the text of the alarm message with what it takes as a
 * short message. ?format=json&message=TEXT measures a text; message.js does that while it is typed.
 */
#include <stdlib.h>

#include "shared/choice_controls.h"
#include "shared/operators.h"
#include "shared/page.h"
#include "shared/request.h"
#include "shared/short_message.h"
#include "shared/text_controls.h"
#include "shared/text_filters.h"

static db_row* countries;

/* The control's name goes out as it is, and so can bring the id along. */
static void print_country(const setting* about) {
  gen_selectbox_dbase_item(countries, COUNTRY_CODE, COUNTRY_NAME, state_folder(), about->name,
                           "country\" id=\"country", COUNTRY_CODE_SIZE);
}

static int32_t store_country(const setting* about, const char* code) {
  if (search_db(countries, COUNTRY_CODE, code) == NULL) return -1;
  return update_item(state_folder(), about->name, code, COUNTRY_CODE_SIZE);
}

static const control country_select = {print_country, store_country, 0};

/* The operators are those of the country that is stored. */
static int32_t operator_row(uint32_t index, uintptr_t arg, selectbox_text_option* out) {
  char code[COUNTRY_CODE_SIZE + 1];
  (void)arg;
  read_item(state_folder(), "country", code, COUNTRY_CODE_SIZE);
  return operators_row(countries, code, index, out);
}

/* Shows the size of a text below its control. */
static void print_message(const setting* about) {
  char* text = NULL;
  get_textarea_file(&text, state_folder(), about->name, (uint32_t)about->maximum);
  sms_size size = sms_measure(text != NULL ? text : "");
  free(text);
  text_area.print(about);
  html_printf(1,
              "<output for=\"%s\" class=\"quiet\">Septets: <b id=\"septets\">%u</b>, "
              "short messages: <b id=\"messages\">%u</b>, cannot be sent: "
              "<b id=\"refused\">%s</b></output>\r\n",
              about->name, size.septets, size.messages,
              *size.refused != '\0' ? size.refused : "none");
}

static int32_t store_message(const setting* about, const char* text) {
  return text_area.store(about, text);
}

static const control message_area = {print_message, store_message, 0};

enum { COUNTRY, OPERATOR, MESSAGE, SETTING_COUNT };

static const setting settings[SETTING_COUNT] = {
    [COUNTRY] = {"country", "Country", .control = &country_select},
    [OPERATOR] = {"operator", "Operator", &text_select, .row = operator_row, .fallback = "auto"},
    [MESSAGE] = {"message", "Alarm message", &message_area, 480, .filter = text_filter_lines},
};

static int32_t save(void* context, cgi_attr* attrs, int32_t count, int32_t kind) {
  (void)kind;
  outcome_store_form(context, attrs, count, settings, SETTING_COUNT, setting_store);
  return 0;
}

static sms_size asked;

static int32_t read_query(void* context, cgi_attr* attrs, int32_t count, int32_t kind) {
  const char* text = request_value(attrs, count, settings[MESSAGE].name);
  char* clean = text != NULL ? text_area_clean(&settings[MESSAGE], text) : NULL;
  if (clean != NULL) asked = sms_measure(clean);
  free(clean);
  return page_read_query(context, attrs, count, kind);
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

static void print_page(const outcome* result) {
  page_begin_scripted("mobile", "Mobile", PAGE_ASSETS "/message.js");
  outcome_print(result, settings, SETTING_COUNT);
  page_form("mobile");
  for (int s = 0; s < SETTING_COUNT; s++) setting_print(&settings[s]);
  page_form_end("Save");
  page_end();
}

int main(void) {
  outcome result = {0, 0, 0};
  origin_guard();
  countries = operators_read();
  getcgivars(&result, save, request_is_post() ? NULL : read_query);
  if (request_is_post()) {
    outcome_redirect(&result, "mobile");
  } else if (page_asks_for("json")) {
    print_json();
  } else {
    print_page(&result);
  }
  operators_free(countries);
  return 0;
}
