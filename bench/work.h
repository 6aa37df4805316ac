/*
 * The work that the programs of the benchmark do alike: twenty settings in items of one folder,
 * named by the environment, shown as text inputs or taken from a form.
 */
#ifndef BENCH_WORK_H
#define BENCH_WORK_H

enum { FIELD_COUNT = 20, FIELD_CHARACTERS = 64, FIELD_SIZE = 3 * FIELD_CHARACTERS };

#define STATE_VARIABLE "BENCH_STATE"
#define HEADER "Content-Type: text/html; charset=utf-8\r\n\r\n"

#endif
