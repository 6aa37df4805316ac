#include "shared/number_controls.h"

#include "shared/state.h"

static void print_number(const setting* about) {
  uint32_t number = 0;
  uint32_t flags = rd_numberbox_item(state_folder(), about->name, &number, about->limits.usual);
  gen_xnumberbox((uint32_t)about->maximum, number, flags,
                 " id=\"%s\" name=\"%s\" inputmode=\"numeric\"", about->name, about->name);
}

static int32_t store_number(const setting* about, const char* text) {
  uint32_t number = 0;
  rd_numberbox_item(state_folder(), about->name, &number, about->limits.usual);
  scan_number(text, &number, about->limits.least, about->limits.most, about->limits.usual);
  return wr_numberbox_item(state_folder(), about->name, number);
}

const control number_box = {print_number, store_number, 0};

enum { RANGE_BYTES = 21 }; /* two numbers of ten digits */

static void scan(const setting* about, const char* text, uint32_t* first, uint32_t* last) {
  scan_range(text, first, last, about->limits.least, about->limits.most, about->limits.usual);
}

static uint32_t read_range(const setting* about, uint32_t* first, uint32_t* last) {
  char text[RANGE_BYTES + 1];
  int32_t length = read_item(state_folder(), about->name, text, RANGE_BYTES);
  *first = *last = about->limits.usual;
  scan(about, text, first, last);
  return length < 0 ? PF_DISABLED : 0;
}

static void print_range(const setting* about) {
  uint32_t first = 0;
  uint32_t last = 0;
  uint32_t flags = read_range(about, &first, &last);
  gen_xrangebox((uint32_t)about->maximum, &first, &last, NULL, flags, " id=\"%s\" name=\"%s\"",
                about->name, about->name);
}

static int32_t store_range(const setting* about, const char* text) {
  char clean[RANGE_BYTES + 1];
  uint32_t first = 0;
  uint32_t last = 0;
  read_range(about, &first, &last);
  scan(about, text, &first, &last);
  snprintf(clean, sizeof clean, "%u-%u", (unsigned)first, (unsigned)last);
  return update_item(state_folder(), about->name, clean, RANGE_BYTES);
}

const control range_box = {print_range, store_range, 0};
