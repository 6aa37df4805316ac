/*
 * Controls for addresses, each on an item of the same name. A store function answers like
 * update_item().
 */
#ifndef DEMO_ADDRESS_CONTROLS_H
#define DEMO_ADDRESS_CONTROLS_H

#include <stdint.h>

void print_address(const char* name);
int32_t store_address(const char* name, const char* text);

/* A netmask is printed as an address; one of 8 to 30 bits is stored. */
int32_t store_netmask(const char* name, const char* text);

void print_route(const char* name);
int32_t store_route(const char* name, const char* text);

/* An address that no interface can have is refused. */
void print_mac(const char* name);
int32_t store_mac(const char* name, const char* text);

#endif
