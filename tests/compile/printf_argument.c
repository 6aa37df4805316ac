/*
 * One call of a function that takes a printf format, compiled twice: with a right argument, which
 * must compile, and with a wrong one, which the compiler must complain about. CALL is the call up
 * to its format.
 */
#include "tavik.h"

void page(void);

void page(void) {
  CALL " id=\"%d\"", ARGUMENT);
}
