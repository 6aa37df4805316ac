/*
 * Controls for one of several values: numbered choices as a select or as radio buttons, and a
 * select whose rows have texts as values. What is no choice leaves a text select's item as it is.
 */
#ifndef DEMO_CHOICE_CONTROLS_H
#define DEMO_CHOICE_CONTROLS_H

#include "shared/setting.h"

extern const control number_select;
extern const control radio_buttons;
extern const control text_select;

#endif
