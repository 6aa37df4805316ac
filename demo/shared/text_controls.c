#include "shared/text_controls.h"

#include <stdlib.h>
#include <string.h>

#include "shared/state.h"

static void print_box(const setting* about) {
  gen_xtextbox_item(state_folder(), about->name, about->maximum, about->flags,
                    " id=\"%s\" name=\"%s\"", about->name, about->name);
}

static int32_t store_box(const setting* about, const char* text) {
  return update_textbox_item(state_folder(), about->name, text, (uint32_t)about->maximum,
                             about->filter);
}

const control text_box = {print_box, store_box, 0};

static void print_area(const setting* about) {
  char* text = NULL;
  uint32_t maximum = (uint32_t)about->maximum;
  int32_t size = get_textarea_file(&text, state_folder(), about->name, maximum);
  gen_textarea(text, size > 0 ? 0 : PF_DISABLED,
               " id=\"%s\" name=\"%s\" rows=\"4\" maxlength=\"%u\"", about->name, about->name,
               maximum);
  free(text);
}

char* text_area_clean(const setting* about, const char* text) {
  char* clean = malloc(strlen(text) + 1);
  if (clean == NULL) return NULL;
  textarea_to_unix(clean, text);
  scan_textbox(clean, (uint32_t)about->maximum, 0, clean, (uint32_t)strlen(clean), about->filter);
  size_t lead = strspn(clean, "\n");
  memmove(clean, clean + lead, strlen(clean + lead) + 1);
  return clean;
}

static int32_t store_area(const setting* about, const char* text) {
  char* clean = text_area_clean(about, text);
  if (clean == NULL) return -1;
  int32_t stored =
      update_textarea_file(state_folder(), about->name, clean, (uint32_t)about->maximum);
  free(clean);
  return stored;
}

const control text_area = {print_area, store_area, 0};
