/*
 * The countries, and the mobile operators of each: the files of the demo's assets. An operator
 * belongs to the country whose mobile country code its numeric name begins with.
 */
#ifndef DEMO_OPERATORS_H
#define DEMO_OPERATORS_H

#include "tavik.h"

/* The columns of the countries. */
enum { COUNTRY_CODE, COUNTRY_NAME, COUNTRY_MOBILE_CODE, COUNTRY_COLUMNS, COUNTRY_CODE_SIZE = 2 };

/* Reads both files; the countries are null if theirs cannot be read. */
db_row* operators_read(void);

void operators_free(db_row* countries);

/* A row of the country's operators for a text select; the first is "auto". */
int32_t operators_row(db_row* countries, const char* code, uint32_t index,
                      selectbox_text_option* out);

#endif
