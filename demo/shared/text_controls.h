/* Controls for texts: a field with a line, and a text area with a whole file. */
#ifndef DEMO_TEXT_CONTROLS_H
#define DEMO_TEXT_CONTROLS_H

#include "shared/setting.h"

extern const control text_box;
extern const control text_area;

/*
 * What a text area stores of a text that was sent. One line feed at the beginning would get lost on
 * the way to a browser and back, so none is kept there. Result: a text for free(); null without
 * memory.
 */
char* text_area_clean(const setting* about, const char* text);

#endif
