/*
 * A plain C program that knows nothing but the public header. It calls every function of the
 * interface in the order of the header and checks one plain result of each, the page output
 * included.
 */
#ifndef PLAIN_H
#define PLAIN_H

#define _GNU_SOURCE
#include <tavik.h>

#include <stdlib.h>
#include <string.h>
#include <unistd.h>

extern int failures;

#define CHECK(condition)                                                                          \
  do {                                                                                            \
    if (!(condition)) failures++, fprintf(stderr, "%s:%d: %s\n", __FILE__, __LINE__, #condition); \
  } while (0)

/* Whether all output since the last time was this text. */
int printed(const char* text);

/* The subsystems; directory is an empty one to work in, which they leave empty. */
void request(void);
void output(const char* directory);
void items(const char* directory);
void text_fields(const char* directory);
void choice_fields(const char* directory);
void addresses(const char* directory);
void passwords(const char* directory);
void certificates(const char* directory);
void network(void);
void commands(const char* directory);
void data(const char* directory);

#endif
