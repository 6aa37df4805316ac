/*
 * One call of a function that takes a printf format, compiled twice: with a right argument, which
 * must compile, and with a wrong one, which the compiler must complain about. CALL is the call up
 * to its format.
 */
#include "tavik.h"

int32_t callback(uint32_t operation, uint32_t index, uintptr_t arg);
void page(void);

void page(void) {
  CALL " id=\"%d\"", ARGUMENT);
}
