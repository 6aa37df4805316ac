/*
 * What became of a form: stored, left as it was, or refused, for each of its settings. The answer
 * to a POST sends the browser back to the page with the outcome in the query, so that a reload does
 * not send the form again, and the page tells it in words.
 */
#ifndef DEMO_OUTCOME_H
#define DEMO_OUTCOME_H

#include "shared/setting.h"

/* A bit for each setting of a table, the first is bit 0. */
typedef struct outcome outcome;
struct outcome {
  uint32_t changed;
  uint32_t failed;
  int32_t told; /* whether a redirect brought this outcome */
};

/* Notes the result of an update function for the setting with this index. */
void outcome_note(outcome* result, uint32_t index, int32_t stored);

/*
 * Calls store(setting, value) for each value of a form that has the name of a setting, in the
 * form's order, and notes the results. setting_store() stores each as its control does.
 */
void outcome_store_form(outcome* result, const cgi_attr* attrs, int32_t count,
                        const setting* settings, uint32_t setting_count,
                        int32_t (*store)(const setting* about, const char* text));

/* Answers a POST: the browser gets the page again, which tells the outcome. The log has it too. */
void outcome_redirect(const outcome* result, const char* page);

/* Takes an outcome off the query that outcome_redirect() made. */
void outcome_read(outcome* result, const cgi_attr* attrs, int32_t count);

/* Tells in words what a save did, if there was one. */
void outcome_print(const outcome* result, const setting* settings, uint32_t count);

#endif
