/*
 * "Log": the last lines of the device's own log, as a command prints them. ?format=text gives the
 * whole log as a file.
 */
#include "shared/access.h"
#include "shared/device_log.h"
#include "shared/page.h"

enum { SHOWN_LINES = 200 };

/* No user has a say in the folder's name, which stands between double quotes here. */
#define LOG_COMMAND "cat \"%s/" DEVICE_LOG_OLD "\" \"%s/" DEVICE_LOG "\" 2>/dev/null"

static void print_file(void) {
  print_str(
      "Content-Type: text/plain; charset=utf-8\r\n"
      "Content-Disposition: attachment; filename=\"log.txt\"\r\n"
      "Cache-Control: no-store\r\nX-Content-Type-Options: nosniff\r\n\r\n");
  run_shell(PF_RAW, LOG_COMMAND, state_folder(), state_folder());
}

static void print_page(void) {
  page_begin("log", "Log");
  if (stat_item(state_folder(), DEVICE_LOG) < 0 && stat_item(state_folder(), DEVICE_LOG_OLD) < 0) {
    print_str("<p>Nothing has been logged yet.</p>\r\n");
  } else {
    run_shell(PF_PRE, LOG_COMMAND " | tail -n %d", state_folder(), state_folder(), SHOWN_LINES);
    print_str(
        "<p class=\"actions\"><a href=\"log?format=text\">The whole log as a file</a></p>\r\n");
  }
  page_end();
}

int main(void) {
  access_guard();
  getcgivars(NULL, NULL, page_read_query);
  if (page_asks_for("text")) {
    print_file();
  } else {
    print_page();
  }
  return 0;
}
