/* The device's own log, a text file in the state with a line for each event. */
#ifndef DEMO_DEVICE_LOG_H
#define DEMO_DEVICE_LOG_H

#include "tavik.h"

#define DEVICE_LOG "log"
#define DEVICE_LOG_OLD "log.old" /* the lines before those; the log is kept short */

/* Adds a line: the time, the user who is logged in, and what the format yields. */
void device_log(const char* format, ...) TAVIK_PRINTF(1, 2);

#endif
