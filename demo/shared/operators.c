#include "shared/operators.h"

#include <string.h>

#include "shared/page.h"

db_row* operators_read(void) {
  db_row* countries = NULL;
  read_db_file(PAGE_ASSETS "/countries.txt", COUNTRY_COLUMNS, &countries);
  read_copn_file(PAGE_ASSETS "/operators.txt");
  return countries;
}

void operators_free(db_row* countries) {
  free_copn();
  free_db(countries);
}

int32_t operators_row(db_row* countries, const char* code, uint32_t index,
                      selectbox_text_option* out) {
  const copn_entry* entry = copn_ptr();
  if (index == 0) {
    *out = (selectbox_text_option){"auto", "Automatic"};
    return 1;
  }
  while (entry != NULL && --index > 0) entry = entry->next;
  if (entry == NULL) return -1;
  const db_row* country = search_db(countries, COUNTRY_CODE, code);
  if (country == NULL || country->used <= COUNTRY_MOBILE_CODE) return 0;
  const char* prefix = country->columns[COUNTRY_MOBILE_CODE];
  *out = (selectbox_text_option){entry->numeric, entry->name};
  return prefix != NULL && strncmp(entry->numeric, prefix, strlen(prefix)) == 0;
}
