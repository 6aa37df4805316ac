#include "shared/page.h"

#include <string.h>
#include <time.h>

/* One page a line. */
/* clang-format off */
static const struct {
  const char* page;
  const char* title;
} navigation[] = {
    {"status", "Status"},
    {"system", "System"},
    {"network", "Network"},
    {"routes", "Routes"},
    {"mobile", "Mobile"},
    {"vpn", "VPN"},
    {"schedule", "Schedule"},
    {"certificates", "Certificates"},
    {"firmware", "Firmware"},
    {"log", "Log"},
    {"administration", "Administration"},
    {"notes", "Notes"},
};
/* clang-format on */

static char asked_format[8];

int32_t page_asks_for(const char* format) {
  return strcmp(asked_format, format) == 0;
}

int32_t page_read_query(void* context, cgi_attr* attrs, int32_t count, int32_t kind) {
  const char* format = request_value(attrs, count, "format");
  (void)kind;
  if (format != NULL) strsncpy(asked_format, sizeof asked_format, format);
  if (context != NULL) outcome_read(context, attrs, count);
  return 0;
}

static void print_navigation(const char* page) {
  print_str("<nav aria-label=\"Pages\">\r\n");
  for (size_t i = 0; i < sizeof navigation / sizeof *navigation; i++) {
    const char* current = strcmp(navigation[i].page, page) == 0 ? " aria-current=\"page\"" : "";
    printf("<a href=\"%s\"%s>%s</a>\r\n", navigation[i].page, current, navigation[i].title);
  }
  print_str("</nav>\r\n");
}

/* Made when the demo was built, since it names the style and the scripts by their hashes. */
static void print_policy(void) {
  char policy[2048];
  if (read_item(PAGE_ASSETS, "policy", policy, sizeof policy - 1) <= 0) return;
  printf("Content-Security-Policy: %s\r\n", policy);
}

/* The device's name, and its clock beside the browser's. */
static void print_head_line(void) {
  char clock[64];
  time_t now = time(NULL);
  strftime(clock, sizeof clock, "%H:%M:%S on the device", localtime(&now));
  print_str("<header>");
  print_timeline(state_folder(), "hostname", 3 * 63, clock);
  print_str("</header>\r\n");
}

void page_begin_scripted(const char* page, const char* title, const char* script) {
  print_policy();
  /* The frame's own html tag comes third; a browser merges this one's language into it. */
  print_head_p1(
      "Content-Type: text/html; charset=utf-8\r\n"
      "Cache-Control: no-store\r\n"
      "X-Content-Type-Options: nosniff\r\n\r\n"
      "<!DOCTYPE html>\r\n",
      "<html lang=\"en\">\r\n",
      "<meta charset=\"utf-8\">\r\n"
      "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\r\n"
      "<link rel=\"icon\" href=\"/ports.svg\">\r\n");
  print_head_css(PAGE_ASSETS "/style.css", NULL);
  print_head_script(SCRIPT_OPEN | SCRIPT_CLOSE | SCRIPT_FILE, PAGE_ASSETS "/clock.js");
  print_head_script(SCRIPT_OPEN | SCRIPT_CLOSE | SCRIPT_FILE, script);
  print_head_p2(title, NULL);
  print_head_line();
  print_navigation(page);
  print_str("<main>\r\n<h1>");
  html_print_text(title);
  print_str("</h1>\r\n");
}

void page_begin(const char* page, const char* title) {
  page_begin_scripted(page, title, NULL);
}

void page_form(const char* page) {
  printf("<form method=\"post\" action=\"%s\">\r\n", page);
}

void page_form_end(const char* button) {
  printf("<p class=\"actions\"><button type=\"submit\">%s</button></p>\r\n</form>\r\n", button);
}

void page_label(const char* name, const char* label) {
  printf("<p class=\"field\"><label for=\"%s\">%s</label>\r\n", name, label);
}

void page_field_end(void) {
  print_str("</p>\r\n");
}

void page_legend(const char* legend) {
  printf("<fieldset class=\"field\"><legend>%s</legend>\r\n<div class=\"choices\">", legend);
}

void page_legend_end(void) {
  print_str("</div></fieldset>\r\n");
}

void page_end(void) {
  print_str("</main>\r\n");
  print_foot();
}

int page_run(const char* page, cgi_handler save, void (*print_page)(const outcome* result)) {
  outcome result = {0, 0, 0};
  origin_guard();
  getcgivars(&result, save, request_is_post() ? NULL : page_read_query);
  if (request_is_post()) {
    outcome_redirect(&result, page);
  } else {
    print_page(&result);
  }
  return 0;
}
