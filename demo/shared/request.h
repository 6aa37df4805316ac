/* What a page asks of its request. */
#ifndef DEMO_REQUEST_H
#define DEMO_REQUEST_H

#include "tavik.h"

int32_t request_is_post(void);

/* The value that was sent under a name, the last one of several; null if there was none. */
const char* request_value(const cgi_attr* attrs, int32_t count, const char* name);

#endif
