#include "plain.h"

static int32_t path_length(const char* path, int32_t first, uint32_t second) {
  return (int32_t)strlen(path) + first + (int32_t)second;
}

static int32_t add_length(uintptr_t context, char* text) {
  *(int*)context += (int)strlen(text);
  return 0;
}

static int32_t plus_one(uint32_t value) {
  return (int32_t)value + 1;
}

static void values(const char* directory) {
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
  CHECK(read_item(directory, "text", buffer, 15) == 4 && strcmp(buffer, "a bc") == 0);
  CHECK(read_items_str(add_length, (uintptr_t)&letters, directory, "text") == 4 && letters == 3);
  CHECK(read_item_alloc(directory, "text", &heap) == 4 && strcmp(heap, "a bc") == 0);
  free(heap);
  CHECK(read_item_uint(directory, "number", &number) == 1 && number == 7);
  CHECK(read_item_uint_fmt(&number, "%s/joined", directory) == 2 && number == 12);
  CHECK(read_item_sint(directory, "number", &signed_number) == 1 && signed_number == 7);
  CHECK(call_uint(directory, "number", plus_one) == 8);
  CHECK(str_to_uint("12") == 12 && str_to_sint("-12") == -12 && bool_to_uint("true") == 1);
  CHECK(update_item(directory, "text", "a bc", 9) == 0);
  CHECK(compare_item(directory, "text", "new", 9) == 1);
  CHECK(update_item_uint(directory, "joined", 12) == 0);
  CHECK(write_item_uint(directory, "number", 9) == 2);
  CHECK(write_item_text(directory, "text", "new") == 4);
}

static void descriptors(const char* directory) {
  char buffer[16];
  char* heap = NULL;
  uint32_t number = 0;
  int32_t signed_number = 0;
  int32_t fd = open_path_name(directory, "number", O_RDWR, 0);
  CHECK(read_item_uint_fd(fd, &number) == 1 && number == 9);
  CHECK(lseek(fd, 0, SEEK_SET) == 0 && read_item_sint_fd(fd, &signed_number) == 1);
  CHECK(lseek(fd, 0, SEEK_SET) == 0 && read_item_fd(fd, buffer, 15) == 1 && buffer[0] == '9');
  CHECK(lseek(fd, 0, SEEK_SET) == 0 && read_item_alloc_fd(fd, &heap, 1) == 1 && heap[0] == '9');
  free(heap);
  CHECK(full_write_fd(fd, "x", 1) == 1);
  CHECK(lseek(fd, 1, SEEK_SET) == 1 && full_read_fd(fd, buffer, 1) == 1 && buffer[0] == '\n');
  CHECK(fflush(stdout) == 0 && full_copy_fd(fd, STDOUT_FILENO) == 1 && close(fd) == 0);
}

static void directories(const char* directory) {
  char path[64];
  char text[] = "aba";
  int letters = 0;
  snprintf(path, sizeof path, "%s/leaf", directory);
  CHECK(make_directory(path, 0700, 0) == 0 && access(path, R_OK | W_OK | X_OK) == 0);
  CHECK(create_item(path, "item", "value", 9) == 6);
  CHECK(remove_dir_leaf(path) == 0);
  CHECK(check_dir(directory) == 3);
  snprintf(path, sizeof path, "%s/text", directory);
  CHECK(rd_file_line(path, add_length, (uintptr_t)&letters) == 0 && letters == 4);
  CHECK(remove_item(directory, "text") == 0);
  CHECK(remove_filef("%s/%s", directory, "number") == 0);
  CHECK(remove_filef("%s/%s", directory, "joined") == 0);
  str_replace_chr(text, 'a', '-');
  CHECK(strcmp(text, "-b-") == 0);
}

void items(const char* directory) {
  values(directory);
  descriptors(directory);
  directories(directory);
}
