/* The routes as an XML document. */
#ifndef DEMO_ROUTE_DOCUMENT_H
#define DEMO_ROUTE_DOCUMENT_H

#include "tavik.h"

/* Prints the document, its header lines included. */
void route_document_print(const xtable* routes);

#endif
