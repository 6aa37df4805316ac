/* The values that the device's items have when it is new. */
#ifndef DEMO_FIRST_VALUES_H
#define DEMO_FIRST_VALUES_H

#include <stddef.h>

typedef struct item_value item_value;
struct item_value {
  const char* name;
  const char* value;
};

/* All of them, ended by a null name. */
extern const item_value first_values[];

/* Null for an item that has none. */
const char* first_value(const char* name);

#endif
