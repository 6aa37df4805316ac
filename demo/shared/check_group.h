/*
 * A group of check boxes. A box that is off sends nothing, so a hidden field tells that the group
 * was in the form.
 */
#ifndef DEMO_CHECK_GROUP_H
#define DEMO_CHECK_GROUP_H

#include "tavik.h"

/* Prints the hidden field; the boxes follow. */
void check_group_begin(const char* name);

/* The flags are the box's print flags. */
void check_group_box(const char* name, uint32_t value, const char* label, uint32_t flags);

/*
 * For a group whose boxes all have its own name: whether it was in the form, and then a bit in the
 * mask for each box that was on. Values are below the limit, of at most 32.
 */
int32_t check_group_read(const cgi_attr* attrs, int32_t count, const char* name, uint32_t limit,
                         uint32_t* mask);

#endif
