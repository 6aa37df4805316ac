#include <stdio.h>

#include "items/value_line.h"
#include "tavik.h"

void xml_data_header(xml_data* doc) {
  xml_data_str(doc, "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n");
}

void xml_data_tag(xml_data* doc, const char* name, int32_t form) {
  // By form. Arrays, not pointers: no relocations.
  static constexpr char kEnds[][4] = {">", ">\n", "", ">\n", "/>\n"};
  if (name != nullptr) {
    xml_data_str(doc, form == XML_TAG_CLOSE ? "</" : "<");
    xml_data_str(doc, name);
  }
  if (form >= XML_TAG_OPEN && form <= XML_TAG_EMPTY) xml_data_str(doc, kEnds[form]);
}

void xml_data_element(xml_data* doc, const char* name, const char* text) {
  xml_data_tag(doc, name, XML_TAG_OPEN);
  xml_data_txt(doc, text, UINT32_MAX);
  xml_data_tag(doc, name, XML_TAG_CLOSE);
}

void xml_data_attr_str(xml_data* doc, const char* name, const char* value) {
  xml_data_str(doc, " ");
  xml_data_str(doc, name);
  xml_data_str(doc, "=\"");
  xml_data_str(doc, value);
  xml_data_str(doc, "\"");
}

void xml_data_attr_num(xml_data* doc, const char* name, uint32_t value) {
  char text[tavik::kNumberBuffer];
  snprintf(text, sizeof text, "%u", value);
  xml_data_attr_str(doc, name, text);
}
