/* "Schedule": when the device restarts and backs its settings up, and the cron lines of that. */
#include <string.h>

#include "shared/page.h"

enum { DAY_COUNT = 7, TIME_CHARACTERS = 5 };

/* Each job has two settings, its time and then its weekdays. */
enum { RESTART, BACKUP, JOB_COUNT, SETTING_COUNT = 2 * JOB_COUNT };

static const setting settings[SETTING_COUNT] = {
    {.name = "restart_time", .label = "Restart at"},
    {.name = "restart_days", .label = "Restart on"},
    {.name = "backup_time", .label = "Backup at"},
    {.name = "backup_days", .label = "Backup on"},
};

static const char* const commands[JOB_COUNT] = {"/sbin/reboot", "/usr/sbin/backup"};

static const setting* time_of(uint32_t job) {
  return &settings[(size_t)job * 2];
}

static const setting* days_of(uint32_t job) {
  return &settings[(size_t)job * 2 + 1];
}

static uint32_t day_bit(const char* text) {
  return *text >= '0' && *text < '0' + DAY_COUNT && text[1] == '\0' ? 1U << (*text - '0') : 0;
}

static int32_t of_a_time(uint32_t position, uint32_t character) {
  return character == ':' || textbox_filter_digit(position, character);
}

static int32_t store_time(const char* name, const char* text) {
  char clean[16];
  uint32_t hours = 0;
  uint32_t minutes = 0;
  scan_textbox(text, TIME_CHARACTERS, 0, clean, TIME_CHARACTERS, of_a_time);
  if (scan_time(clean, &hours, &minutes) < 1) return -1;
  snprintf(clean, sizeof clean, "%02u:%02u", hours % 24, minutes % 60);
  return update_item(page_state(), name, clean, TIME_CHARACTERS);
}

/* A box that is off sends nothing: a hidden field of its name, without a day, goes along. */
static int32_t save(void* context, cgi_attr* attrs, int32_t count, int32_t kind) {
  (void)kind;
  for (uint32_t job = 0; job < JOB_COUNT; job++) {
    uint32_t mask = 0;
    int32_t told = 0;
    for (int32_t i = 0; i < count; i++) {
      const char* value = attrs[i].value;
      if (strcmp(attrs[i].name, time_of(job)->name) == 0) {
        page_note(context, 2 * job, store_time(time_of(job)->name, value));
      }
      if (strcmp(attrs[i].name, days_of(job)->name) != 0) continue;
      told = 1;
      mask |= day_bit(value);
    }
    if (!told) continue;
    page_note(context, 2 * job + 1, update_item_uint(page_state(), days_of(job)->name, mask));
  }
  return 0;
}

static void print_days(uint32_t job) {
  dow_entry days[DAY_COUNT];
  uint32_t mask = 0;
  uint32_t flags = rd_numberbox_item(page_state(), days_of(job)->name, &mask, 0);
  gen_dow_table(days, DAY_COUNT,
                "1Monday\0"
                "2Tuesday\0"
                "3Wednesday\0"
                "4Thursday\0"
                "5Friday\0"
                "6Saturday\0"
                "0Sunday\0");
  printf(
      "<fieldset class=\"field\"><legend>%s</legend>\r\n<div class=\"choices week\">"
      "<input type=\"hidden\" name=\"%s\" value=\"\">\r\n",
      days_of(job)->label, days_of(job)->name);
  for (int d = 0; d < DAY_COUNT; d++) {
    print_str("<label>");
    gen_xcheckbox(flags | checkbox_flags(mask >> days[d].day & 1, 0), " name=\"%s\" value=\"%u\"",
                  days_of(job)->name, (unsigned)days[d].day);
    printf(" %s</label>\r\n", days[d].label);
  }
  print_str("</div></fieldset>\r\n");
}

static void print_cron_line(uint32_t job) {
  char days[16];
  char time[TIME_CHARACTERS + 1];
  uint32_t mask = 0;
  uint32_t hours = 0;
  uint32_t minutes = 0;
  read_item_uint(page_state(), days_of(job)->name, &mask);
  read_item(page_state(), time_of(job)->name, time, TIME_CHARACTERS);
  scan_time(time, &hours, &minutes);
  cron_weekdays(days, sizeof days, mask);
  if (*days == '\0') {
    printf("# never: %s\n", commands[job]);
  } else {
    printf("%u %u * * %s %s\n", minutes, hours, days, commands[job]);
  }
}

static void print_page(const outcome* result) {
  page_begin("schedule", "Schedule");
  page_print_outcome(result, settings, SETTING_COUNT);
  page_form("schedule");
  for (uint32_t job = 0; job < JOB_COUNT; job++) {
    page_label(time_of(job)->name, time_of(job)->label);
    gen_xtextbox_item(page_state(), time_of(job)->name, TIME_CHARACTERS, 0,
                      " id=\"%s\" name=\"%s\" placeholder=\"HH:MM\" required", time_of(job)->name,
                      time_of(job)->name);
    page_field_end();
    print_days(job);
  }
  page_form_end();
  print_str("<h2>Cron lines</h2>\r\n<pre>");
  for (uint32_t job = 0; job < JOB_COUNT; job++) print_cron_line(job);
  print_str("</pre>\r\n");
  page_end();
}

int main(void) {
  return page_run("schedule", save, print_page);
}
