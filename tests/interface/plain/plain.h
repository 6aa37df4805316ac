/*
 * A plain C program that knows nothing but the public header. It calls every function of the
 * interface in the order of the header, checks one plain result of each, and compares all that
 * they printed with the page in the file that its argument names.
 */
#ifndef PLAIN_H
#define PLAIN_H

#define _GNU_SOURCE
#include <tavik.h>

#include <fcntl.h>
#include <stdlib.h>
#include <string.h>
#include <unistd.h>

extern int failures;

#define CHECK(condition)                                                                          \
  do {                                                                                            \
    if (!(condition)) failures++, fprintf(stderr, "%s:%d: %s\n", __FILE__, __LINE__, #condition); \
  } while (0)

/* The subsystems; directory is an empty one to work in, which they leave empty. */
void request_and_output(const char* directory);
void items(const char* directory);
void fields(const char* directory);
void accounts(const char* directory);
void system_and_data(const char* directory);

#endif
