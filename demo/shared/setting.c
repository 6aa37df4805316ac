#include "shared/setting.h"

#include "shared/page.h"
#include "shared/text_controls.h"

static const control* control_of(const setting* about) {
  return about->control != NULL ? about->control : &text_box;
}

void setting_print(const setting* about) {
  const control* kind = control_of(about);
  if (kind->several) {
    page_legend(about->label);
    kind->print(about);
    page_legend_end();
  } else {
    page_label(about->name, about->label);
    kind->print(about);
    page_field_end();
  }
}

int32_t setting_store(const setting* about, const char* text) {
  const control* kind = control_of(about);
  return kind->store != NULL ? kind->store(about, text) : 0;
}
