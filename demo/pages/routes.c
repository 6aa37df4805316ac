/* "Routes": a list whose rows are added, deleted, moved and sorted; ?format=xml is a document. */
#include "shared/page.h"
#include "shared/request.h"
#include "shared/route_document.h"
#include "shared/route_list.h"

enum { LIST, NETWORK, GATEWAY, REMARK, OLDER_LIST, SETTING_COUNT };

static const setting settings[SETTING_COUNT] = {
    [LIST] = {.label = "List of routes"},
    [NETWORK] = {.name = "network", .label = "Network", .maximum = 18},
    [GATEWAY] = {.name = "gateway", .label = "Gateway", .maximum = 15},
    [REMARK] = {.name = "remark", .label = "Remark", .maximum = REMARK_CHARACTERS},
    [OLDER_LIST] = {.label = "Change to a list that is no longer the current one"},
};

static const struct {
  const char* name;
  const char* label;
  int32_t (*act)(xtable* routes, uint32_t index);
} actions[] = {
    {"up", "Up", xtable_move_up_row},
    {"down", "Down", xtable_move_dn_row},
    {"delete", "Delete", xtable_del_row},
    {"sort", "Sort by network", routes_sort},
};
enum { ROW_ACTION_COUNT = 3, ACTION_COUNT = 4 };

static xtable routes;

/* Row numbers mean something in the list that the form showed, and in no other. */
static void act(outcome* result, const cgi_attr* attrs, int32_t count, size_t action) {
  const char* index = request_value(attrs, count, actions[action].name);
  if (index == NULL) return;
  if (str_to_uint(request_value(attrs, count, "mark")) == routes_mark(&routes)) {
    actions[action].act(&routes, str_to_uint(index));
  } else {
    result->failed |= 1U << OLDER_LIST;
  }
}

static int32_t save(void* context, cgi_attr* attrs, int32_t count, int32_t kind) {
  outcome* result = context;
  const char* network = request_value(attrs, count, settings[NETWORK].name);
  (void)kind;
  for (size_t a = 0; a < ACTION_COUNT; a++) act(result, attrs, count, a);
  if (network != NULL) {
    uint32_t wrong =
        route_add(&routes, network, request_value(attrs, count, settings[GATEWAY].name),
                  request_value(attrs, count, settings[REMARK].name));
    if ((wrong & ROUTE_NETWORK_WRONG) != 0) result->failed |= 1U << NETWORK;
    if ((wrong & ROUTE_GATEWAY_WRONG) != 0) result->failed |= 1U << GATEWAY;
  }
  outcome_note(result, LIST, routes_store(&routes));
  return 0;
}

static void print_row(const xtable_row* row) {
  route_texts texts;
  route_print((const route*)row, &texts);
  const uint32_t disabled[ROW_ACTION_COUNT] = {row->prev == NULL ? PF_DISABLED : 0,
                                               row->next == NULL ? PF_DISABLED : 0, 0};
  html_printf(1,
              "<tr><td data-label=\"Network\">%s</td><td data-label=\"Gateway\">%s</td>"
              "<td data-label=\"Remark\">%s</td><td class=\"row-actions\">",
              texts.network, texts.gateway, ((const route*)row)->remark);
  for (int a = 0; a < ROW_ACTION_COUNT; a++) {
    gen_xbutton(actions[a].label, NULL, PF_SUBMIT | disabled[a],
                " class=\"plain\" name=\"%s\" value=\"%u\" aria-label=\"%s %s\"", actions[a].name,
                (unsigned)row->index, actions[a].label, texts.network);
  }
  print_str("</td></tr>\r\n");
}

static void print_list(void) {
  page_form("routes");
  printf("<input type=\"hidden\" name=\"mark\" value=\"%u\">\r\n", (unsigned)routes_mark(&routes));
  print_str(
      "<table class=\"stack\"><thead><tr><th>Network</th><th>Gateway</th><th>Remark</th>"
      "<th>Change</th></tr></thead>\r\n<tbody>\r\n");
  for (const xtable_row* row = routes.head; row != NULL; row = row->next) print_row(row);
  if (routes.head == NULL) print_str("<tr><td colspan=\"4\">None.</td></tr>\r\n");
  print_str("</tbody></table>\r\n<p class=\"actions\">");
  gen_xbutton(actions[ROW_ACTION_COUNT].label, NULL, PF_SUBMIT, " class=\"plain\" name=\"sort\"");
  print_str("<a href=\"routes?format=xml\">The list as XML</a></p>\r\n</form>\r\n");
}

static void print_page(const outcome* result) {
  page_begin("routes", "Routes");
  outcome_print(result, settings, SETTING_COUNT);
  print_list();
  print_str("<h2>Add a route</h2>\r\n");
  page_form("routes");
  for (int s = NETWORK; s <= REMARK; s++) {
    page_label(settings[s].name, settings[s].label);
    gen_xtextbox(settings[s].maximum, NULL, 0, " id=\"%s\" name=\"%s\"%s", settings[s].name,
                 settings[s].name, s == REMARK ? "" : " required");
    page_field_end();
  }
  print_str("<p class=\"quiet\">A network, such as 192.0.2.0/24, stands in the list once.</p>\r\n");
  page_form_end("Add");
  page_end();
}

int main(void) {
  outcome result = {0, 0, 0};
  origin_guard();
  routes_read(&routes);
  getcgivars(&result, save, request_is_post() ? NULL : page_read_query);
  if (request_is_post()) {
    outcome_redirect(&result, "routes");
  } else if (page_asks_for("xml")) {
    route_document_print(&routes);
  } else {
    print_page(&result);
  }
  xtable_cleanup(&routes);
  return 0;
}
