/* The device's routes: a row table, kept in a file with one line for each. */
#ifndef DEMO_ROUTE_LIST_H
#define DEMO_ROUTE_LIST_H

#include "tavik.h"

enum { ROUTE_MOST = 64, REMARK_CHARACTERS = 40 };

typedef struct route route;
struct route {
  xtable_row row;
  ipv4_cidr network;
  uint32_t gateway; /* in network byte order */
  char remark[3 * REMARK_CHARACTERS + 1];
};

/* The texts of a route's addresses. */
typedef struct route_texts route_texts;
struct route_texts {
  char network[19];
  char gateway[16];
};

void route_print(const route* one, route_texts* out);

/* Bits for what is wrong with a route's texts. */
enum { ROUTE_NETWORK_WRONG = 1, ROUTE_GATEWAY_WRONG = 2 };

/*
 * Appends a route. A network that is in the list already is as wrong as one that is no network.
 *
 * Result: 0, or bits for what is wrong; without room or memory it is the network.
 */
uint32_t route_add(xtable* routes, const char* network, const char* gateway, const char* remark);

/* Reads the file. A line that is no route is passed over. */
void routes_read(xtable* routes);

/* Stores the table if it differs from the file. Result: that of update_textarea_file(). */
int32_t routes_store(const xtable* routes);

/* A number that tells one state of the list from another. */
uint32_t routes_mark(const xtable* routes);

/* Sorts by network. The number is not looked at. Result: 1, 0 for an empty table. */
int32_t routes_sort(xtable* routes, uint32_t index);

#endif
