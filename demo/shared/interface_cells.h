/* What is to be told of the system's network interfaces, as texts. */
#ifndef DEMO_INTERFACE_CELLS_H
#define DEMO_INTERFACE_CELLS_H

#include "tavik.h"

enum { CELL_NAME, CELL_STATE, CELL_LINK, CELL_IPV4, CELL_IPV6, CELL_COUNT, CELL_SIZE = 512 };

/* Calls print for each interface; more is 0 for the first. The texts may be changed. */
void interface_cells_each(void (*print)(char cells[CELL_COUNT][CELL_SIZE], int32_t more));

#endif
