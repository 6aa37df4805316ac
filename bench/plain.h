/* The same work in plain C, by hand: items, escaping, and the decoding of a form. */
#ifndef BENCH_PLAIN_H
#define BENCH_PLAIN_H

/* Reads an item's first line; the length, or -1. */
int plain_read(const char* state, const char* name, char* value, int size);

/* Stores a value in an item if it differs. */
void plain_update(const char* state, const char* name, const char* value);

/* Prints a value with markup and everything beyond ASCII as character references. */
void plain_escape(const char* value);

/* Decodes a form in place and calls take() for each pair. */
void plain_decode(char* form, void (*take)(const char* name, const char* value));

#endif
