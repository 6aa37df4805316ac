/*
 * What became of a request, as one number: the answer to a POST sends the browser back to the page
 * with "?told=" and the number, and the page tells it in words. 0 is nothing to tell.
 */
#ifndef DEMO_TOLD_H
#define DEMO_TOLD_H

#include "tavik.h"

typedef struct message message;
struct message {
  const char* text;
  int32_t failed;
};

/* Answers a POST: the browser gets the page again, which tells the number. */
void told_redirect(const char* page, uint32_t number);

/* A handler for the query that told_redirect() made; the context is the uint32_t. */
int32_t told_read(void* context, cgi_attr* attrs, int32_t count, int32_t kind);

/* Prints the number's message, which is the one at this index of the table. */
void told_print(uint32_t number, const message* messages, uint32_t count);

#endif
