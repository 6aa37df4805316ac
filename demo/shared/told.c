#include "shared/told.h"

#include "shared/request.h"

void told_redirect(const char* page, uint32_t number) {
  printf("Status: 303 See Other\r\nLocation: %s?told=%u\r\n\r\n", page, (unsigned)number);
}

int32_t told_read(void* context, cgi_attr* attrs, int32_t count, int32_t kind) {
  uint32_t* number = context;
  (void)kind;
  *number = str_to_uint(request_value(attrs, count, "told"));
  return 0;
}

void told_print(uint32_t number, const message* messages, uint32_t count) {
  if (number == 0 || number >= count || messages[number].text == NULL) return;
  printf("<p class=\"%s\" role=\"status\">", messages[number].failed ? "note failed" : "note");
  html_print_text(messages[number].text);
  print_str("</p>\r\n");
}
