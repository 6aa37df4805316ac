#include "shared/route_document.h"

#include <stdlib.h>

#include "shared/route_list.h"

static void add_route(xml_data* doc, const route* one) {
  route_texts texts;
  route_print(one, &texts);
  xml_data_tag(doc, "route", XML_TAG_START);
  xml_data_attr_num(doc, "number", one->row.index);
  xml_data_attr_str(doc, "network", texts.network);
  xml_data_tag(doc, NULL, XML_TAG_OPEN_NL);
  xml_data_element(doc, "gateway", texts.gateway);
  xml_data_element(doc, "remark", one->remark);
  xml_data_tag(doc, "route", XML_TAG_CLOSE);
}

void route_document_print(const xtable* routes) {
  xml_data doc = {0, 0, NULL};
  xml_data_header(&doc);
  xml_data_tag(&doc, "routes", XML_TAG_OPEN_NL);
  for (const xtable_row* row = routes->head; row != NULL; row = row->next) {
    add_route(&doc, (const route*)row);
  }
  xml_data_tag(&doc, "routes", XML_TAG_CLOSE);
  if (doc.capacity == 0) print_str("Status: 500 Internal Server Error\r\n");
  print_str(
      "Content-Type: application/xml\r\nCache-Control: no-store\r\n"
      "X-Content-Type-Options: nosniff\r\n\r\n");
  print_mem(doc.buffer, doc.length);
  free(doc.buffer);
}
