/*
 * What all pages of the demo device share: where its state lies, the frame around a page's content,
 * the guard against forms of other sites, and the way a save is told.
 *
 * A page with a form runs like this: page_guard(), getcgivars(), and then, on a POST,
 * page_redirect(), so that a reload does not send the form again, or else page_begin(), its content
 * and page_end().
 */
#ifndef DEMO_PAGE_H
#define DEMO_PAGE_H

#include "shared/setting.h"

/* What became of a form: a bit for each setting of its table, the first is bit 0. */
typedef struct outcome outcome;
struct outcome {
  uint32_t changed;
  uint32_t failed;
  int32_t told; /* whether a redirect brought this outcome */
};

/* The folder of what pages inline, from where a server starts them. */
#define PAGE_ASSETS "../../assets"

/* The folder of the device's items. */
const char* page_state(void);

/* Ends the page with status 403 if it is a POST that a form of another site has sent. */
void page_guard(void);

int32_t page_is_post(void);

/*
 * Whether the query of a GET was sent by a page of this device, so that it may store something.
 * Browsers tell no origin here, but the referring page, unless another site hides it.
 */
int32_t page_trusts_query(void);

/* Notes the result of an update function for the setting with this index. */
void page_note(outcome* result, uint32_t index, int32_t stored);

/*
 * Calls store(setting, value) for each value of a form that has the name of a setting, in the
 * form's order, and notes the results. setting_store() stores each as its control does.
 */
void page_store_form(outcome* result, const cgi_attr* attrs, int32_t count, const setting* settings,
                     uint32_t setting_count,
                     int32_t (*store)(const setting* about, const char* text));

/* Answers a POST: the browser gets the page again, which tells the outcome. The log has it too. */
void page_redirect(const char* page, const outcome* result);

/* A handler for the query that page_redirect() made; the context is an outcome. */
int32_t page_read_outcome(void* context, cgi_attr* attrs, int32_t count, int32_t kind);

/* Whether the query that page_read_outcome() got asks for this format instead of the page. */
int32_t page_asks_for(const char* format);

/* Prints all that stands ahead of a page's content. */
void page_begin(const char* page, const char* title);

/* The same with a script of the demo's assets inlined. */
void page_begin_scripted(const char* page, const char* title, const char* script);

/* Tells in words what a save did, if there was one. */
void page_print_outcome(const outcome* result, const setting* settings, uint32_t count);

/* A form of a page, which ends with a button. */
void page_form(const char* page);
void page_form_end(const char* button);

/* Begins a field with its label; the control, whose id is the name, and page_field_end() follow. */
void page_label(const char* name, const char* label);
void page_field_end(void);

/* The same for several controls, each with a label of its own. */
void page_legend(const char* legend);
void page_legend_end(void);

void page_end(void);

/* The whole run of a page with a form, for pages that need nothing in between. Result: 0. */
int page_run(const char* page, cgi_handler save, void (*print_page)(const outcome* result));

#endif
