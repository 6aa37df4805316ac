/* "Schedule": when the device restarts and backs its settings up, and the cron lines of that. */
#include "shared/check_group.h"
#include "shared/page.h"
#include "shared/time_box.h"

enum { DAY_COUNT = 7 };

/* The days are an item with a bit for each. */
static void print_days(const setting* about) {
  dow_entry days[DAY_COUNT];
  uint32_t mask = 0;
  uint32_t flags = rd_numberbox_item(state_folder(), about->name, &mask, 0);
  gen_dow_table(days, DAY_COUNT,
                "1Monday\0"
                "2Tuesday\0"
                "3Wednesday\0"
                "4Thursday\0"
                "5Friday\0"
                "6Saturday\0"
                "0Sunday\0");
  check_group_begin(about->name);
  for (int d = 0; d < DAY_COUNT; d++) {
    uint32_t checked = checkbox_flags(mask >> days[d].day & 1, 0);
    check_group_box(about->name, days[d].day, days[d].label, flags | checked);
  }
}

static const control day_boxes = {print_days, NULL, 1};

enum { RESTART_TIME, RESTART_DAYS, BACKUP_TIME, BACKUP_DAYS, SETTING_COUNT };

static const setting settings[SETTING_COUNT] = {
    [RESTART_TIME] = {"restart_time", "Restart at", .control = &time_box},
    [RESTART_DAYS] = {"restart_days", "Restart on", .control = &day_boxes},
    [BACKUP_TIME] = {"backup_time", "Backup at", .control = &time_box},
    [BACKUP_DAYS] = {"backup_days", "Backup on", .control = &day_boxes},
};

static int32_t save(void* context, cgi_attr* attrs, int32_t count, int32_t kind) {
  uint32_t mask = 0;
  (void)kind;
  outcome_store_form(context, attrs, count, settings, SETTING_COUNT, setting_store);
  for (uint32_t s = RESTART_DAYS; s <= BACKUP_DAYS; s += 2) {
    const char* name = settings[s].name;
    if (!check_group_read(attrs, count, name, DAY_COUNT, &mask)) continue;
    outcome_note(context, s, update_item_uint(state_folder(), name, mask));
  }
  return 0;
}

static void print_cron_line(const setting* time, const setting* days, const char* command) {
  char text[16];
  uint32_t mask = 0;
  uint32_t hours = 0;
  uint32_t minutes = 0;
  time_read(time, &hours, &minutes);
  read_item_uint(state_folder(), days->name, &mask);
  cron_weekdays(text, sizeof text, mask);
  if (*text == '\0') {
    printf("# never: %s\n", command);
  } else {
    printf("%u %u * * %s %s\n", minutes, hours, text, command);
  }
}

static void print_page(const outcome* result) {
  page_begin("schedule", "Schedule");
  outcome_print(result, settings, SETTING_COUNT);
  page_form("schedule");
  for (int s = 0; s < SETTING_COUNT; s++) setting_print(&settings[s]);
  page_form_end("Save");
  print_str("<h2>Cron lines</h2>\r\n<pre>");
  print_cron_line(&settings[RESTART_TIME], &settings[RESTART_DAYS], "/sbin/reboot");
  print_cron_line(&settings[BACKUP_TIME], &settings[BACKUP_DAYS], "/usr/sbin/backup");
  print_str("</pre>\r\n");
  page_end();
}

int main(void) {
  return page_run("schedule", save, print_page);
}
