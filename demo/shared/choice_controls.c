#include "shared/choice_controls.h"

#include "shared/state.h"

static uint32_t count_choices(const setting* about) {
  uint32_t count = 0;
  while (about->choices[count] != NULL) count++;
  return count;
}

static int32_t choice_option(uint32_t operation, uint32_t index, uintptr_t arg) {
  const setting* about = (const setting*)arg;  // NOLINT(performance-no-int-to-ptr): the word is one
  if (about->choices[index] == NULL) return -1;
  if (operation == SELECT_OP_LABEL) html_print_text(about->choices[index]);
  return 1;
}

static void print_select(const setting* about) {
  select_state state = {0, {0}};
  state.flags = rd_numberbox_item(state_folder(), about->name, &state.value.index, 0);
  gen_xselectbox_num(&state, choice_option, (uintptr_t)about, " id=\"%s\" name=\"%s\"", about->name,
                     about->name);
}

/* What is no number counts as the first choice of a select. */
static int32_t store_select(const setting* about, const char* text) {
  uint32_t choice = 0;
  scan_select_num(text, &choice, count_choices(about), 0);
  return update_item_uint(state_folder(), about->name, choice);
}

const control number_select = {print_select, store_select, 0};

static void print_radio(const setting* about) {
  uint32_t current = 0;
  uint32_t flags = rd_numberbox_item(state_folder(), about->name, &current, 0);
  for (uint32_t i = 0; about->choices[i] != NULL; i++) {
    print_str("<label>");
    gen_radio(about->name, i, current, NULL, flags);
    printf(" %s</label>\r\n", about->choices[i]);
  }
}

static int32_t store_radio(const setting* about, const char* text) {
  uint32_t choice = 0;
  rd_numberbox_item(state_folder(), about->name, &choice, 0);
  scan_select_num(text, &choice, count_choices(about), choice);
  return update_item_uint(state_folder(), about->name, choice);
}

const control radio_buttons = {print_radio, store_radio, 1};

enum { VALUE_SIZE = 64 };

static select_state read_text_select(const setting* about) {
  select_state state = {0, {0}};
  rd_selectbox_text_item(state_folder(), about->name, &state, about->row, 0, about->fallback);
  return state;
}

static void print_text_select(const setting* about) {
  char attributes[VALUE_SIZE];
  select_state state = read_text_select(about);
  snprintf(attributes, sizeof attributes, " id=\"%s\"", about->name);
  gen_selectbox_text(&state, about->name, about->row, NULL, 0, attributes);
}

static int32_t store_text_select(const setting* about, const char* text) {
  select_state state = read_text_select(about);
  scan_select_text(text, &state, about->row, 0);
  return update_item(state_folder(), about->name, state.value.text, VALUE_SIZE);
}

const control text_select = {print_text_select, store_text_select, 0};
