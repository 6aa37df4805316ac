/*
 * What all pages of the demo device share: the frame around a page's content and its forms, and the
 * way a page with a form runs, which is origin_guard(), getcgivars(), and then, on a POST,
 * outcome_redirect(), or else page_begin(), outcome_print(), its content and page_end().
 */
#ifndef DEMO_PAGE_H
#define DEMO_PAGE_H

#include "shared/origin.h"
#include "shared/outcome.h"
#include "shared/request.h"
#include "shared/state.h"

/* The folder of what pages inline, from where a server starts them. */
#define PAGE_ASSETS "../../assets"

/* A handler for the query of a page; the context is the outcome that is to be told, or null. */
int32_t page_read_query(void* context, cgi_attr* attrs, int32_t count, int32_t kind);

/* Whether the query asks for this format instead of the page. */
int32_t page_asks_for(const char* format);

/* Prints all that stands ahead of a page's content. */
void page_begin(const char* page, const char* title);

/* The same with a script of the demo's assets inlined. */
void page_begin_scripted(const char* page, const char* title, const char* script);

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
