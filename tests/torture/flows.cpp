#include "torture/flows.h"

#include <fcntl.h>
#include <mtd/mtd-user.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

#include "support/scripted_ioctl.h"
#include "tavik.h"
#include "torture/faults.h"

// Markup that several patterns share.
#define NO_BODY "Content-Type: text/plain\r\n\r\n"
#define HEAD "<html>\r\n<head>\r\n"
#define HEAD_END "</head>\r\n</html>\r\n "
#define HASH "\\$1\\$[./0-9A-Za-z]{8}\\$[./0-9A-Za-z]{22}\n"
#define TIP "( title=\"tip\")?"
#define OPTION_A "<option value=\"YS5wZW0=\">a.pem</option>\r\n"
#define OPTION_B "<option value=\"Yi5wZW0=\" selected>b.pem</option>\r\n"
#define OPTION_NONE "<option value=\"\" selected>none</option>\r\n"
#define CERTIFICATES_LEFT                                                           \
  " left (-1|1|2)<select( disabled)?>\r\n(" OPTION_A ")?(" OPTION_B "|" OPTION_NONE \
  ")</select>"                                                                      \
  "( certs/a.pem\\[-\\]( keys/a.key\\[-\\])?)?"

namespace {

// A path below the directory, without the heap.
struct Path {
  char text[300];
  Path(const char* dir, const char* name) { snprintf(text, sizeof text, "%s/%s", dir, name); }
  operator const char*() const { return text; }
};

const char* shown(const char* text) {
  return text == nullptr ? "-" : text;
}

void form(const char* dir) {
  const cgi_handler query = [](void*, cgi_attr*, int32_t, int32_t) { return printf("q "); };
  const cgi_handler body = [](void* context, cgi_attr* attrs, int32_t, int32_t) {
    const auto* const in = static_cast<const char*>(context);
    printf("%d ", update_textbox_item(in, attrs->name, attrs->value, 20, nullptr));
    return 9;
  };
  printf("=%d", getcgivars(const_cast<char*>(dir), body, query));
}

void upload(const char* dir) {
  const cgi_handler part = [](void* context, cgi_attr* attrs, int32_t count, int32_t) {
    printf("%d ", count);
    if (count < 2) return 7;
    const auto* const in = static_cast<const char*>(context);
    int32_t fd = open_path_name(in, "upload", O_CREAT | O_TRUNC | O_WRONLY, 0666);
    const int32_t end = scan_boundary(STDIN_FILENO, attrs->value, 1, mpart_write_fd, &fd);
    if (fd >= 0) close(fd);
    printf("end %d ", end);
    return end;
  };
  printf("=%d", getcgivars(const_cast<char*>(dir), part, nullptr));
}

void password(const char* dir) {
  passwd_state state;
  rd_passwd(dir, "password", &state, 0);
  const passwd_entry entry{0, "secret", PW_STATUS_ACCEPTED, "Fresh1", PW_STATUS_ACCEPTED, "Fresh1"};
  update_pw(&entry, &state, Path(dir, "second"), 1);
  printf("%d", state.status);
}

void certificates(const char* dir) {
  const Path folder(dir, "certs/");
  const Path keys(dir, "keys/");
  const cert_tool tool{nullptr, "exec 2>&-; echo tip;#", ""};
  const cert_link links[] = {{keys, ".key", nullptr, "exec 2>&-; echo tip;#", "", 0, 1}, {}};
  cert_dir list{};
  printf("%d", cert_dir_setup(&list, folder, &tool, links));
  show_certificates(
      &list, 0,
      [](uintptr_t, const char* name, int32_t position, const char* tip) {
        printf(" %s%s", name, tip == nullptr ? "" : tip);
        return position == 0 ? 1U : 0U;
      },
      [](uintptr_t, uint32_t number, uint32_t, const char* tip) {
        return printf(" %u%s", number, tip == nullptr ? "" : tip);
      });
  delete_certificate(&list, 0);
  printf(" left %d", list.count);
  cert_dir_free(&list);
  gen_selectbox_certs(folder, nullptr, "b.pem", "none", 0, nullptr);
}

void commands(const char*) {
  printf("=%d ", run_shell(PF_PRE, "exec 2>&-; echo %d", 1));
  char* text = nullptr;
  const int32_t size = asprint_shell(&text, "exec 2>&-; head -c 9000 /dev/zero | tr '\\0' y");
  printf("%d/%zu ", size, text == nullptr ? 0 : strlen(text));
  free(text);
  shell_output list{};
  printf("=%d ", shell_run(&list, "exec 2>&-; echo %d; echo 2", 1));
  shell_print(&list, 0);
}

void database(const char* dir) {
  db_row* list = nullptr;
  printf("%d", read_db_file(Path(dir, "db"), 2, &list));
  for (const db_row* row = list; row != nullptr; row = row->next) {
    printf(" ");
    for (uint32_t i = 0; i < row->used; ++i) printf("%s", shown(row->columns[i]));
  }
  printf("%s", search_db(list, 0, "C") != nullptr ? " found" : "");
  free_db(list);
}

void operators(const char* dir) {
  printf("%d", read_copn_file(Path(dir, "operators")));
  for (const copn_entry* entry = copn_ptr(); entry != nullptr; entry = entry->next) {
    printf(" %s", entry->name);
  }
  free_copn();
}

// What never uses the heap, apart from flows of its own.
void heapless(const char* dir) {
  char text[100];
  uint32_t number = 0;
  utf8_length("\xC3\xA9", 9, nullptr);
  strsncpy(text, sizeof text, "text");
  print_str_xcrlf("a\nb");
  html_print_text("<\xC3\xA9\xE2\x82\xAC>");
  html_print_text_nl("a\nb");
  html_print_text_limit(3, "abcdef", 9);
  print_num_str_mark("1234567", ",");
  html_printf(0, "<%3s%5d%*c>", "text", 7, 2, 0x2022);
  create_item_uint(dir, "number", 5);
  compare_item(dir, "name", "other", 50);
  write_item_uint(dir, "number", 7);
  read_item(dir, "name", text, 99);
  read_item_uint(dir, "number", &number);
  call_uint(dir, "number", [](uint32_t) { return 0; });
  const int from = open_path_name(dir, "name", O_RDONLY, 0);
  full_copy_fd(from, STDOUT_FILENO);
  if (from >= 0) close(from);
  stat_item(dir, "name");
  remove_item(dir, "name");
  update_textbox_item(dir, "text", "new", 50, textbox_filter_octet);
  update_password_item(dir, "password", "new", 50, textbox_filter_alnum, nullptr);
  gen_xtextbox_item(dir, "list", 50, PF_MASKED, " name=\"%s\"", "a");
  full_line_read_fd(STDIN_FILENO, text, 10);
  scan_boundary(STDIN_FILENO, "B", 1, mpart_fwrite, stdout);
}

struct Row {
  xtable_row row;
  char key;
};

void rows(const char*) {
  xtable table{};
  for (const char key : {'a', 'b', 'c'}) {
    if (auto* const made = reinterpret_cast<Row*>(xtable_new_row(&table, sizeof(Row)))) {
      made->key = key;
    }
  }
  xtable_sort(&table, sizeof(void*), [](const void* left, const void* right) {
    return (*static_cast<Row* const*>(right))->key - (*static_cast<Row* const*>(left))->key;
  });
  for (const xtable_row* row = table.head; row != nullptr; row = row->next) {
    printf("%u%c", row->index, reinterpret_cast<const Row*>(row)->key);
  }
  xtable_cleanup(&table);
}

void xml(const char* dir) {
  xml_data doc{};
  xml_data_str(&doc, "head");
  xml_data_append(&doc, nullptr, 1024);
  xml_data_element(&doc, "n", "<\xC3\xA9");
  const int32_t got = xml_data_txt_fd(&doc, open_path_name(dir, "name", O_RDONLY, 0));
  for (uint32_t i = 0; i < doc.length; ++i) {
    if (doc.buffer[i] != '\0') putchar(doc.buffer[i]);
  }
  printf(" %d", got);
  free(doc.buffer);
}

void text_area(const char* dir) {
  char* text = nullptr;
  const int32_t size = get_textarea_file(&text, dir, "text", 9);
  printf("%d %s %d", size, shown(text), update_textarea_file(dir, "text", "new", 9));
  free(text);
}

void reading(const char* dir) {
  char* text = nullptr;
  uint32_t number = 0;
  printf("%d ", read_item_alloc(dir, "name", &text));
  free(text);
  printf("%d ",
         read_items_str([](uintptr_t, char* word) { return printf("%s ", word); }, 0, dir, "list"));
  printf("%d ", read_item_uint_fmt(&number, "%s/number", dir));
  printf("%u ", number);
}

void removing(const char* dir) {
  printf("%d ", remove_dir_leaf(Path(dir, "keys")));
  printf("%d", remove_filef("%s/name", dir));
}

void printing(const char* dir) {
  gen_xtextbox_item(dir, "name", 9, 0, " id=\"%d\"", 1);
  gen_text_item(dir, "name");
  gen_json_text_item(dir, "name", 9, "n", 0);
  const int32_t fd = open_path_name(dir, "text", O_RDONLY, 0);
  printf("%d", print_fd(fd));
  if (fd >= 0) close(fd);
}

void texts(const char*) {
  print_refresh(nullptr, nullptr, 1, "/%d", 7);
  char* escaped = nullptr;
  char text[9001];
  memset(text, 'x', 9000);
  text[9000] = '\0';
  const int32_t size = html_asprint_text(&escaped, text);
  printf(" %d/%zu ", size, escaped == nullptr ? 0 : strlen(escaped));
  free(escaped);
  escaped = nullptr;
  const int32_t title = asprint_title(&escaped, "<");
  printf("%d%s ", title, shown(escaped));
  free(escaped);
  const selectbox_callback ask = [](uint32_t operation, uint32_t, uintptr_t) {
    return operation == SELECT_OP_ATTRS ? printf(" asked") : -1;
  };
  gen_xselectbox_num(nullptr, ask, 0, " name=m");
  ipv4_cidr value{5, 5};
  printf("%d", scan_ipv4cidr("10.1.2.3/24", &value, 77, 0));
  printf(" %x/%u", value.address, value.prefix);
}

// A PHY whose registers all read as 4, and a flash partition of 9 bytes.
std::optional<int> answer(int, unsigned long request, void* argument) {
  if (test::struck({EIO})) return -1;
  if (request == MEMGETINFO) {
    static_cast<mtd_info_user*>(argument)->type = MTD_NORFLASH;
    static_cast<mtd_info_user*>(argument)->size = 9;
    return 0;
  }
  return std::nullopt;
}

void devices(const char* dir) {
  const test::ScriptedIoctl device(answer);
  iface_info info;
  printf("%d ", get_interface("lo", &info));
  printf("%d ", read_interface_conf(nullptr, nullptr));
  printf("%d ", read_interface6_conf("none", nullptr));
  printf("%d ", read_uboot_env(Path(dir, "environment")));
  printf("%s", shown(uboot_getenv("a")));
  free_uboot_env();
}

const test::Flow all[] = {
    {"form", form, "q 6 =9 name\\[fresh\n\\]",
     "(q )?(6 =9 name\\[fresh\n\\]|=1|" NO_BODY
     "getcgivars\\(\\): Couldn't malloc for cgiinput.\r\n)",
     "q (-1 =9( name\\[\\])?|" NO_BODY "getcgivars\\(\\): Couldn't read CGI input from STDIN.\r\n)",
     "application/x-www-form-urlencoded", "name=fresh"},
    {"upload", upload, "1 5 end 1 0 =7 upload\\[hello\\]",
     "=0|1 " NO_BODY "cgidecode\\(\\): Couldn't malloc for multipart.\r\n",
     "1 (" NO_BODY "cgidecode\\(\\): Couldn't read multipart line from STDIN.\r\n"
     "|5 end [12] 0 =7( upload\\[(hel?l?o?)?\\])?)",
     "multipart/form-data; boundary=B",
     "--B\r\nContent-Disposition: form-data; name=\"f\"; filename=\"a\"\r\n"
     "Content-Type: text/plain\r\n\r\nhello\r\n--B--\r\n"},
    {"password", password, "1 password\\[" HASH "\\] second/password\\[" HASH "\\]", "2",
     "4|1( password\\[(" HASH ")?\\])?( second/password\\[(" HASH ")?\\])?"},
    {"heapless", heapless,
     ".*sent.* name\\[-\\] number\\[7\n\\] password\\[new\n\\] text\\[new\n\\]", nullptr, ".*",
     nullptr, "line\r\nsent\r\n--B--\r\n"},
    {"certificates", certificates,
     "2 a.pem title=\"tip\" 7 title=\"tip\" b.pem title=\"tip\" left 1"
     "<select>\r\n" OPTION_B "</select> certs/a.pem\\[-\\] keys/a.key\\[-\\]",
     "(-1|2( a.pem" TIP "( 7" TIP ")?)?( b.pem" TIP ")?)" CERTIFICATES_LEFT,
     "(-1|2 a.pem" TIP "( 7" TIP ")? b.pem" TIP ")" CERTIFICATES_LEFT},
    {"commands", commands, "<pre>1\n</pre>=0 12288/9000 =0 1\n2\n",
     "(=-1|<pre>1\n</pre>=0|<pre>unable to run script!\n</pre>=-1) "
     "(-1/0|4096/4095|8192/8191|12288/9000) =(-1 |0 (1\n)?(2\n)?)",
     "<pre>(1\n)?(unable to run script!\n)?</pre>=(-1|0|256) "
     "(-1/0|4096/0|8192/4095|12288/(8191|9000)) =(-1|0|256) (1\n)?(2\n)?"},
    {"database", database, "0 AB C found", "-1|0( [-A]?[-B])?( C found| -)?",
     "(0|-1)( A| AB| AB | AB C found)?"},
    {"operators", operators, "0 One Two", "-1|0( One)?( Two)?", "(0|-1)( One)?( Two)?"},
    {"rows", rows, "1c2b3a", "(1c|1b|1a)?(2b|2a)?(3a)?|1a2b3c", nullptr},
    {"xml", xml, "head<n>&lt;\xC3\xA9</n>\nold 3", "(head)?(<n>&lt;\xC3\xA9</n>\nold 3| 4)",
     "head<n>&lt;\xC3\xA9</n>\n(old)? -1"},
    {"text_area", text_area, "28 old 4 text\\[new\\]", "(28 old|-1 -) (4 text\\[new\\]|-2)",
     "(28 (old)?|0 ) (4 text\\[new\\]|-1( text\\[\\])?)"},
    {"reading", reading, "3 one two 7 2 42 ", "(3|-1) (one two 7|-1) (2 42|-1 0) ",
     "(3|-1) (one two 7|-1) (2 42|-1 0) "},
    {"create", [](const char* dir) { printf("%d", create_concat_item(dir, "made", "a", "b")); },
     "3 made\\[ab\n\\]", nullptr, "-1( made\\[\\])?"},
    {"update",
     [](const char* dir) {
       const int32_t stored = update_item_uint(dir, "number", 7);
       printf("%d %d", stored, stored < 0 ? errno : 0);
     },
     "2 0 number\\[7\n\\]", nullptr, "-1 (5|24|28)( number\\[\\])?"},
    {"write", [](const char* dir) { printf("%d", write_item_text(dir, "name", "new")); },
     "4 name\\[new\n\\]", nullptr, "-1( name\\[\\])?"},
    {"removing", removing, "0 0 keys/a.key\\[-\\] name\\[-\\]",
     "(0|-1) (0|-1)( keys/a.key\\[-\\])?( name\\[-\\])?",
     "(0|-1) (0|-1)( keys/a.key\\[-\\])?( name\\[-\\])?"},
    {"printing", printing,
     "<input type=\"text\" maxlength=\"9\" value=\"old\" id=\"1\">old\"n\": \"old\"old3", nullptr,
     "<input type=\"text\" maxlength=\"9\" value=\"(old\" id=\"1\"|\" id=\"1\" disabled)>(old)?"
     "\"n\": (\"old\"|null)(old3|-1)"},
    {"texts", texts,
     HEAD "<meta http-equiv=\"refresh\" content=\"1; URL=/7\">\r\n" HEAD_END
          "12288/9000 13 title=\"&lt;\" <select name=m disabled>\r\n</select>\r\n1 302010a/24",
     HEAD "(<meta http-equiv=\"refresh\" content=\"1; URL=/7\">\r\n)?" HEAD_END
          "(-1/0|4096/4081|8192/8177|12288/9000) (-1-|13 title=\"&lt;\") "
          "<select (name=m|asked) disabled>\r\n</select>\r\n1 (302010a|4d)/24",
     nullptr},
    {"devices", devices, "0 0 0 0 b", "0 (0|-1) (0|-1) (0 b|4 -)",
     "(0|-1) (0|-1) (0|-1) (0 b|(-1|3) -)"},
};

}  // namespace

namespace test {

std::span<const Flow> flows() {
  return all;
}

std::map<std::string, std::string> first_files() {
  const std::string data("a=b\0", 5);
  const uint32_t checksum = ~crc32(UINT32_MAX, data.data(), 5);
  return {{"name", "old\n"},
          {"list", "one two\n"},
          {"number", "42\n"},
          {"text", "old"},
          {"password", "secret\n"},
          {"second/password", "other\n"},
          {"certs/a.pem", "7\n"},
          {"certs/b.pem", "8\n"},
          {"keys/a.key", ""},
          {"db", "A\nB\n\nC\n"},
          {"operators", "\"1\",\"One\"\n\"2\",\"Two\"\n"},
          {"environment", std::string(reinterpret_cast<const char*>(&checksum), 4) + data}};
}

}  // namespace test
