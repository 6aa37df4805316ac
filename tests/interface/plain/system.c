#include "plain.h"

#include <net/if.h>

static int32_t loopbacks;

static int32_t count_request(const struct ifreq* request, int32_t number) {
  loopbacks += strcmp(request->ifr_name, "lo") == 0 && number == 0;
  return 0;
}

void network(void) {
  iface_info info;
  CHECK(get_interface("lo", &info) == 0 && (info.flags & IFF_LOOPBACK) != 0);
  CHECK(cfg_interface(&info, 0) == 0);
  CHECK(read_interface_conf("lo", count_request) == 0 && loopbacks == 1);
  CHECK(read_interface6_conf("", NULL) <= 0);
  CHECK(get_link_status("lo", 0) == -1);
  CHECK(set_link_pwrdown("lo", 0, 1) == -1);
}

static int32_t first_byte;

static int32_t note_line(uintptr_t context, char* text) {
  first_byte = text[context];
  return 0;
}

void commands(const char* directory) {
  char* heap = NULL;
  shell_output list = {NULL, 0};
  CHECK(run_shell(PF_PRE, "echo a; exit %d", 1) == 256 && printed("<pre>a\n</pre>"));
  CHECK(asprint_shell(&heap, "echo a") == 4096 && strcmp(heap, "a") == 0);
  free(heap);
  CHECK(asprint_title_shell(&heap, "echo a") == 10 && strcmp(heap, " title=\"a\"") == 0);
  free(heap);
  CHECK(shell_run(&list, "echo ab") == 0 && list.count == 1);
  shell_line(&list, note_line, 1);
  CHECK(first_byte == 'b');
  list.first = NULL;
  CHECK(shell_run(&list, "echo '<'") == 0);
  shell_print(&list, PF_COMMENT);
  CHECK(printed("<!--&lt;\n-->"));
  CHECK(signal_process(directory, "missing", 0) == -1);
  CHECK(strcmp(get_progname(1, "a/b"), "b") == 0);
}
