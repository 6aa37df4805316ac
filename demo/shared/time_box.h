/* A control for a time of day, kept as "HH:MM". */
#ifndef DEMO_TIME_BOX_H
#define DEMO_TIME_BOX_H

#include "shared/setting.h"

extern const control time_box;

/* The stored time; 0:00 without one. */
void time_read(const setting* about, uint32_t* hours, uint32_t* minutes);

#endif
