/*
 * A plain C program that knows nothing but the public header. It calls the interface's functions
 * in the order of the header and checks one plain result of each.
 */
#define _GNU_SOURCE
#include <tavik.h>

#include <fcntl.h>
#include <stdlib.h>
#include <string.h>
#include <unistd.h>

static int failures;

#define CHECK(condition)                                                                          \
  do {                                                                                            \
    if (!(condition)) failures++, fprintf(stderr, "%s:%d: %s\n", __FILE__, __LINE__, #condition); \
  } while (0)

static int32_t count_query(void* context, cgi_attr* attrs, int32_t count, int32_t kind) {
  *(int32_t*)context = kind;
  return count + (attrs->parent == NULL ? 0 : 100);
}

static void request(void) {
  int32_t kind = -1;
  setenv("REQUEST_METHOD", "GET", 1);
  setenv("QUERY_STRING", "a=1&b=2", 1);
  CHECK(getcgivars(&kind, count_query, NULL) == 2 && kind == CGI_KIND_QUERY);
}

static void uploads(void) {
  int ends[2];
  char line[8];
  if (pipe(ends) != 0) return;
  int32_t fd = ends[1];
  CHECK(mpart_write_fd(&fd, "a\r\nbody\r\n--B--\r\n", 16) == 0);
  CHECK(full_line_read_fd(ends[0], line, sizeof line) == 1 && strcmp(line, "a") == 0);
  CHECK(scan_boundary(ends[0], "B", 3, mpart_fwrite, stdout) == 3);
  CHECK(strcmp(valid_filename("C:\\a"), "a") == 0);
  close(ends[0]);
  close(ends[1]);
}

static void output(void) {
  const char* text = "\xC3\xA9";
  const char* cursor = text;
  uint32_t bytes = 0;
  char buffer[8] = "";
  char* heap = NULL;
  CHECK(utf8_to_ucs2(&cursor, UINT32_MAX) == 0xE9);
  CHECK(ucs2_to_utf8(buffer, 8, 0xE9) == buffer + 2);
  CHECK(utf8_length(text, 9, &bytes) == 1 && bytes == 2);
  CHECK(strsncpy(buffer, sizeof buffer, "abc") == 3);
  CHECK(print_mem("ab", 2) == 2);
  CHECK(print_str("abc") == 3);
  CHECK(print_str_xcrlf("a\n") == 3);
  CHECK(html_print_ucs2('<') == 4);
  CHECK(html_print_text(text) == 8);
  CHECK(html_print_text_limit(1, "ab", UINT32_MAX) == 1);
  CHECK(html_print_text_nl("\n") == 4);
  CHECK(html_asprint_text(&heap, text) == 4096 && strcmp(heap, "&eacute;") == 0);
  free(heap);
  CHECK(asprint_title(&heap, "a") == 10);
  free(heap);
  print_num_str_mark("1234", ",");
  CHECK(print_fsize(1) == 12);
  int fd = open("/dev/null", O_RDONLY);
  CHECK(print_fd(fd) == 0);
  close(fd);
}

static int32_t path_length(const char* path, int32_t first, uint32_t second) {
  return (int32_t)strlen(path) + first + (int32_t)second;
}

static int32_t ignore_word(uintptr_t context, char* word) {
  *(int*)context += (int)strlen(word);
  return 0;
}

static int32_t plus_one(uint32_t value) {
  return (int32_t)value + 1;
}

static void items(const char* directory) {
  char buffer[16];
  char* heap = NULL;
  uint32_t number = 0;
  int32_t signed_number = 0;
  int letters = 0;
  CHECK(_func_path_name(path_length, "a", "b", 1, 1) == 5);
  CHECK(create_item(directory, "text", "a bc", 9) == 5);
  CHECK(create_item_uint(directory, "number", 7) == 2);
  CHECK(create_concat_item(directory, "joined", "1", "2") == 3);
  CHECK(stat_item(directory, "text") == 0);
  CHECK(read_item(directory, "text", buffer, 15) == 4);
  CHECK(read_items_str(ignore_word, (uintptr_t)&letters, directory, "text") == 4 && letters == 3);
  CHECK(read_item_alloc(directory, "text", &heap) == 4);
  free(heap);
  CHECK(read_item_uint(directory, "number", &number) == 1 && number == 7);
  CHECK(read_item_uint_fmt(&number, "%s/joined", directory) == 2 && number == 12);
  CHECK(read_item_sint(directory, "number", &signed_number) == 1 && signed_number == 7);
  CHECK(call_uint(directory, "number", plus_one) == 8);
  int fd = open_path_name(directory, "number", O_RDWR, 0);
  CHECK(read_item_uint_fd(fd, &number) == 1);
  CHECK(read_item_sint_fd(fd, &signed_number) == 0);
  CHECK(read_item_fd(fd, buffer, 15) == 0);
  CHECK(read_item_alloc_fd(fd, &heap, 1) == 0);
  free(heap);
  CHECK(full_write_fd(fd, "x", 1) == 1);
  CHECK(full_read_fd(fd, buffer, 1) == 0);
  CHECK(full_copy_fd(fd, fd) == 0);
  close(fd);
  CHECK(str_to_uint("12") == 12);
  CHECK(str_to_sint("-12") == -12);
  CHECK(bool_to_uint("true") == 1);
  CHECK(update_item(directory, "text", "a bc", 9) == 0);
  CHECK(compare_item(directory, "text", "new", 9) == 1);
  CHECK(update_item_uint(directory, "joined", 12) == 0);
  CHECK(write_item_uint(directory, "number", 9) == 2);
  CHECK(write_item_text(directory, "text", "new") == 4);
  CHECK(remove_item(directory, "text") == 0);
  remove_item(directory, "number");
  remove_item(directory, "joined");
}

static void plain_controls(const char* directory) {
  char* text = NULL;
  char unix_text[4];
  gen_textarea("text", PF_READONLY, " name=\"%s\"", "area");
  textarea_to_unix(unix_text, "a\r\n");
  CHECK(create_item(directory, "text", "", 0) == 1);
  CHECK(update_textarea_file(directory, "text", unix_text, 5) == 3);
  CHECK(get_textarea_file(&text, directory, "text", 5) == 16 && strcmp(text, "a\n") == 0);
  free(text);
  CHECK(remove_item(directory, "text") == 0);
  CHECK(gen_radio("m", 1, 1, NULL, 0) == '>');
  CHECK(gen_radio_string("m", "a", "b", " id=\"m\"", 0) == '>');
  gen_xbutton("OK", plus_one, PF_SUBMIT, NULL);
  gen_image("/img/", "a.png", "a", " width=\"%d\"", 16);
  CHECK(gen_upload(0, " name=\"%s\"", "file") == '>');
}

static void addresses(const char* directory) {
  uint32_t ip = 0;
  ipv4_cidr net = {0, 0};
  struct sockaddr mac = {0};
  char text[18];
  CHECK(create_item(directory, "ip", "", 0) == 1);
  CHECK(scan_ipv4("10.0.0.1", &ip, 0) == 1);
  CHECK(update_ipv4box_item(directory, "ip", &ip) == 9);
  CHECK(valid_ipv4_addr(&ip, ip, ip) == 1);
  CHECK(scan_ipv4_netmask("255.0.0.0", &ip, 9, 32) == 1);
  CHECK(gen_prefix(gen_netmask(9)) == 9);
  CHECK(rd_ipv4box_item(directory, "ip", &ip, 0) == 0 && ip != 0);
  gen_ipv4box("ip", 0, &ip, 0);
  gen_xipv4box(-1, &ip, 0, NULL);
  CHECK(scan_ipv4cidr("10.0.0.1/8", &net, 0, 1) == 1);
  CHECK(update_ipv4cidr_item(directory, "ip", &net) == 11);
  CHECK(rd_ipv4cidr_item(directory, "ip", &net, 0) == 0 && net.prefix == 8);
  gen_ipv4cidr("net", 0, &net, 0);
  gen_xipv4cidr(-1, &net, 0, " name=\"%s\"", "net");
  CHECK(remove_item(directory, "ip") == 0);
  CHECK(scan_macaddr(&mac, "0:1:2") == 1 && mac_isvalid(&mac) == 1);
  CHECK(strcmp(mac_ntop(&mac, ':', text, sizeof text), "00:01:02:00:00:00") == 0);
  CHECK(*if_hwaddr_ntop("", ':', text, sizeof text) == '\0');
  gen_xmacbox(0, &mac, PF_DISABLED, NULL);
}

static int32_t first_byte;

static int32_t note_line(uintptr_t context, char* text) {
  first_byte = text[context];
  return 0;
}

static void commands(const char* directory) {
  char* heap = NULL;
  shell_output list = {NULL, 0};
  CHECK(run_shell(PF_PRE, "exit %d", 1) == 256);
  CHECK(asprint_shell(&heap, "echo a") == 4096 && strcmp(heap, "a") == 0);
  free(heap);
  CHECK(asprint_title_shell(&heap, "echo a") == 10);
  free(heap);
  CHECK(shell_run(&list, "echo ab") == 0 && list.count == 1);
  shell_line(&list, note_line, 1);
  CHECK(first_byte == 'b');
  list.first = NULL;
  shell_print(&list, PF_PRE);
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
  CHECK(xtable_move_dn_row(&table, 1) == 1 && xtable_del_row(&table, 1) == 1);
  xtable_rm_row(&table, row);
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

int main(void) {
  char directory[] = "tavik-XXXXXX";
  if (mkdtemp(directory) == NULL) return 1;
  request();
  uploads();
  output();
  items(directory);
  plain_controls(directory);
  addresses(directory);
  commands(directory);
  tables();
  documents();
  catalogues();
  rmdir(directory);
  return failures != 0;
}
