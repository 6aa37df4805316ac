#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include "support/capture.h"
#include "support/input_file.h"
#include "support/temp_dir.h"
#include "tavik.h"
#include "torture/faults.h"

namespace {

int32_t ignore_path(const char*, int32_t, uint32_t) {
  return 0;
}

int32_t ignore_number(uint32_t) {
  return 0;
}

class NoHeap : public testing::Test {
 protected:
  // How many allocations the body makes, once stdout has its buffer.
  template <typename Body>
  size_t allocated(Body body) {
    size_t made = 0;
    test::printed([&] {
      putchar('\n');
      const size_t before = test::allocations();
      body();
      made = test::allocations() - before;
    });
    return made;
  }
  test::TempDir dir_;
};

TEST_F(NoHeap, TheCounterCounts) {
  EXPECT_EQ(allocated([] {
              void* volatile block = malloc(1);
              free(block);
            }),
            1U);
}

TEST_F(NoHeap, TextAndPrinting) {
  EXPECT_EQ(allocated([] {
              char buffer[8];
              utf8_length("\xC3\xA9", 9, nullptr);
              strsncpy(buffer, sizeof buffer, "text");
              print_str_xcrlf("a\nb");
              html_print_text("<\xC3\xA9\xE2\x82\xAC>");
              html_print_text_nl("a\nb");
              html_print_text_limit(3, "abcdef", 9);
              print_num_str_mark("1234567", ",");
              html_printf(0, "<%3s%5d%*c>", "text", 7, 2, 0x2022);
            }),
            0U);
}

TEST_F(NoHeap, Items) {
  const char* const dir = dir_.c_str();
  EXPECT_EQ(allocated([dir] {
              char buffer[100];
              uint32_t number = 0;
              _func_path_name(ignore_path, dir, "name", 0, 0);
              create_item(dir, "a", "value", 50);
              create_item_uint(dir, "n", 5);
              create_concat_item(dir, "c", "first", "second");
              update_item(dir, "a", "new value", 50);
              update_item_uint(dir, "n", 6);
              compare_item(dir, "a", "other", 50);
              write_item_uint(dir, "n", 7);
              write_item_text(dir, "a", "written");
              read_item(dir, "a", buffer, 99);
              read_item_uint(dir, "n", &number);
              call_uint(dir, "n", ignore_number);
              const int from = open_path_name(dir, "a", O_RDONLY, 0);
              full_copy_fd(from, STDOUT_FILENO);
              print_fd(from);
              close(from);
              remove_item(dir, "a");
            }),
            0U);
}

TEST_F(NoHeap, TextBoxes) {
  const char* const dir = dir_.c_str();
  EXPECT_EQ(allocated([dir] {
              create_item(dir, "a", "value", 50);
              update_textbox_item(dir, "a", "new value", 50, textbox_filter_octet);
              update_password_item(dir, "a", "secret", 50, textbox_filter_alnum, nullptr);
              gen_xtextbox_item(dir, "a", 50, PF_MASKED, " name=\"%s\"", "a");
              gen_json_text_item(dir, "a", 50, "a", 0);
              gen_text_item(dir, "a");
            }),
            0U);
}

TEST_F(NoHeap, Uploads) {
  const test::InputFile body("line\r\n" + std::string(100000, 'x') + "\r\n--B--\r\n");
  EXPECT_EQ(allocated([&body] {
              char line[10];
              full_line_read_fd(body.fd(), line, sizeof line);
              scan_boundary(body.fd(), "B", 1, mpart_fwrite, stdout);
            }),
            0U);
  EXPECT_EQ(body.left(), 0U);
}

}  // namespace
