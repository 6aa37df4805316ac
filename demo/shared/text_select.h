/* A text select on an item of the same name. What is no row's value counts as the fallback. */
#ifndef DEMO_TEXT_SELECT_H
#define DEMO_TEXT_SELECT_H

#include "tavik.h"

void text_select_print(const char* name, selectbox_text_row row, uintptr_t arg,
                       const char* fallback);

/* A text that is no row's value leaves the item as it is. Result: that of update_item(). */
int32_t text_select_store(const char* name, const char* text, selectbox_text_row row, uintptr_t arg,
                          const char* fallback);

#endif
