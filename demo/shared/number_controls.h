/* Controls for numbers within the limits of their settings. */
#ifndef DEMO_NUMBER_CONTROLS_H
#define DEMO_NUMBER_CONTROLS_H

#include "shared/setting.h"

extern const control number_box;
extern const control range_box; /* two numbers, as in "100-199" */

#endif
