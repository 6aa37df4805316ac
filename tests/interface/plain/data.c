#include "plain.h"

#include <fcntl.h>

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
  CHECK(
      printed("<select name=\"n\">\r\n<option value=\"a\">b</option>\r\n<option value=\"c\" "
              "selected>d</option>\r\n</select>"));
  gen_selectbox_dbase_item(list, 0, 1, directory, "missing", "n", 9);
  CHECK(
      printed("<select name=\"n\" disabled>\r\n<option value=\"a\">b</option>\r\n<option "
              "value=\"c\">d</option>\r\n</select>"));
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

void data(const char* directory) {
  char text[5];
  tables();
  documents();
  CHECK(base64_encode(text, sizeof text, "a", 1) == 4 && strcmp(text, "YQ==") == 0);
  CHECK(base64_decode(text, sizeof text, "Yg==", 4) == 1 && text[0] == 'b');
  databases(directory);
  catalogues();
}
