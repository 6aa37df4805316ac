#include "plain.h"

#include <net/if.h>

static int32_t loopbacks;

static int32_t count_request(const struct ifreq* request, int32_t number) {
  loopbacks += strcmp(request->ifr_name, "lo") == 0 && number == 0;
  return 0;
}

static void network(void) {
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

static void commands(const char* directory) {
  char* heap = NULL;
  shell_output list = {NULL, 0};
  CHECK(run_shell(PF_PRE, "echo a; exit %d", 1) == 256);
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
  CHECK(signal_process(directory, "missing", 0) == -1);
  CHECK(strcmp(get_progname(1, "a/b"), "b") == 0);
}

static int by_number(const void* left, const void* right) {
  const xtable_row* a = *(xtable_row* const*)left;
  const xtable_row* b = *(xtable_row* const*)right;
  return a->index < b->index ? 1 : -1;
}

static void tables(void) {
  xtable table = {NULL, NULL};
  xtable_row* row = xtable_new_row(&table, sizeof *row);
  xtable_add_row(&table, calloc(1, sizeof *row));
  CHECK(xtable_index_row(&table) == 2);
  CHECK(xtable_sort(&table, sizeof row, by_number) == 1 && table.tail == row);
  CHECK(xtable_move_up_row(&table, 2) == 1 && xtable_search_row(&table, 1) == row);
  CHECK(xtable_move_dn_row(&table, 1) == 1 && table.tail == row);
  CHECK(xtable_del_row(&table, 1) == 1 && table.head == row);
  xtable_rm_row(&table, row);
  CHECK(table.head == NULL);
  CHECK(xtable_new_row(&table, sizeof *row) != NULL);
  xtable_cleanup(&table);
  CHECK(table.head == NULL);
}

static void documents(void) {
  xml_data doc = {0, 0, NULL};
  xml_data_header(&doc);
  xml_data_tag(&doc, "a", XML_TAG_START);
  xml_data_attr_str(&doc, "b", "c");
  xml_data_attr_num(&doc, "d", 1);
  xml_data_tag(&doc, NULL, XML_TAG_OPEN);
  xml_data_element(&doc, "e", "<");
  xml_data_txt(&doc, "\n", UINT32_MAX);
  xml_data_str(&doc, "f");
  CHECK(xml_data_txt_fd(&doc, open("/dev/null", O_RDONLY)) == 0);
  xml_data_tag(&doc, "a", XML_TAG_CLOSE);
  xml_data_append(&doc, NULL, 1);
  CHECK(strcmp(strchr(doc.buffer, '\n'), "\n<a b=\"c\" d=\"1\"><e>&lt;</e>\n&#10;f</a>\n") == 0);
  free(doc.buffer);
}

static void databases(const char* directory) {
  char path[64];
  db_row* list = NULL;
  snprintf(path, sizeof path, "%s/file", directory);
  CHECK(create_item(directory, "file", "", 0) == 1);
  CHECK(update_textarea_file(directory, "file", "a\nb\n\nc\nd\n", 99) == 10);
  CHECK(read_db_file(path, 2, &list) == 0);
  CHECK(search_db(list, 0, "c") == list->next && strcmp(list->next->columns[1], "d") == 0);
  gen_selectbox_dbase(list, 0, 1, "n", "c", 0);
  gen_selectbox_dbase_item(list, 0, 1, directory, "missing", "n", 9);
  CHECK(free_db(list) == 0);
  CHECK(write_item_text(directory, "file", "\"26201\",\"Op\"") == 13);
  CHECK(read_copn_file(path) == 0);
  CHECK(copn_ptr() != NULL && strcmp(copn_ptr()->name, "Op") == 0);
  free_copn();
  CHECK(copn_ptr() == NULL && remove_item(directory, "file") == 0);
}

static void catalogues(void) {
  const infoflag_row flags[] = {{1, 0}, {0, 0}};
  const devinfo_row devices[] = {{1, {0}}, {0, {0}}};
  selectbox_text_option option = {NULL, NULL};
  CHECK(crc32(0xFFFFFFFF, "123456789", 9) == 0x340BC6D9);
  CHECK(read_uboot_env("/dev/null") == -1 && uboot_getenv("a") == NULL);
  free_uboot_env();
  CHECK(get_ovpn_cipher(12, 0, &option) == 1 && strcmp(option.value, "none") == 0);
  CHECK(get_ovpn_hash(0, 0, &option) == 1 && strcmp(option.label, "MD5") == 0);
  CHECK(check_ucs2_to_gsm('{') == 2);
  CHECK(get_infoflags(3, flags, "0", NULL) == 2);
  CHECK(get_devinfo(devices, "a") == devices);
}

void system_and_data(const char* directory) {
  char text[5];
  network();
  commands(directory);
  tables();
  documents();
  CHECK(base64_encode(text, sizeof text, "a", 1) == 4 && strcmp(text, "YQ==") == 0);
  CHECK(base64_decode(text, sizeof text, "Yg==", 4) == 1 && text[0] == 'b');
  databases(directory);
  catalogues();
}
