#include "shared/time_box.h"

#include "shared/state.h"

enum { TIME_CHARACTERS = 5 };

static void print_time(const setting* about) {
  gen_xtextbox_item(state_folder(), about->name, TIME_CHARACTERS, 0,
                    " id=\"%s\" name=\"%s\" placeholder=\"HH:MM\" required", about->name,
                    about->name);
}

static int32_t of_a_time(uint32_t position, uint32_t character) {
  return character == ':' || textbox_filter_digit(position, character);
}

static int32_t store_time(const setting* about, const char* text) {
  char clean[16];
  uint32_t hours = 0;
  uint32_t minutes = 0;
  scan_textbox(text, TIME_CHARACTERS, 0, clean, TIME_CHARACTERS, of_a_time);
  if (scan_time(clean, &hours, &minutes) < 1) return -1;
  snprintf(clean, sizeof clean, "%02u:%02u", hours % 24, minutes % 60);
  return update_item(state_folder(), about->name, clean, TIME_CHARACTERS);
}

const control time_box = {print_time, store_time, 0};

void time_read(const setting* about, uint32_t* hours, uint32_t* minutes) {
  char text[TIME_CHARACTERS + 1];
  *hours = *minutes = 0;
  read_item(state_folder(), about->name, text, TIME_CHARACTERS);
  scan_time(text, hours, minutes);
}
