/*
 * Whether a request comes from a page of this device. A browser that is logged in sends the forms
 * of other sites with its user's authority.
 */
#ifndef DEMO_ORIGIN_H
#define DEMO_ORIGIN_H

#include <stdint.h>

/*
 * Ends the page with status 403 if it is a POST that a form of another site has sent. Browsers tell
 * the origin of each; what tells none is no browser.
 */
void origin_guard(void);

/*
 * For a GET whose query would store something. Browsers tell no origin here, but the referring
 * page, unless another site hides it.
 */
int32_t origin_allows_query(void);

#endif
