/* "Log": the last lines of the device's own log, as a command prints them. */
#include "shared/access.h"
#include "shared/device_log.h"
#include "shared/page.h"

enum { SHOWN_LINES = 200 };

int main(void) {
  access_guard();
  getcgivars(NULL, NULL, NULL);
  page_begin("log", "Log");
  if (stat_item(page_state(), DEVICE_LOG) < 0 && stat_item(page_state(), DEVICE_LOG_OLD) < 0) {
    print_str("<p>Nothing has been logged yet.</p>\r\n");
  } else {
    run_shell(PF_PRE,
              "cat \"%s/" DEVICE_LOG_OLD "\" \"%s/" DEVICE_LOG "\" 2>/dev/null | tail -n %d",
              page_state(), page_state(), SHOWN_LINES);
  }
  page_end();
  return 0;
}
