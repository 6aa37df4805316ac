/* What was sent under a name. */
#ifndef DEMO_FORM_VALUE_H
#define DEMO_FORM_VALUE_H

#include "tavik.h"

/* The value, the last one of several; null if there was none. */
const char* form_value(const cgi_attr* attrs, int32_t count, const char* name);

#endif
