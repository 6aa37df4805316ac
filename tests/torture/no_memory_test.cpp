#include <gtest/gtest.h>
#include <mtd/mtd-user.h>

#include "support/capture.h"
#include "support/scripted_ioctl.h"
#include "support/temp_dir.h"
#include "tavik.h"
#include "torture/heap_boundary.h"

namespace {

TEST(NoMemory, RowTablesStayAsTheyAre) {
  xtable table{};
  xtable_row* const first = xtable_new_row(&table, sizeof(xtable_row));
  xtable_row* const last = xtable_new_row(&table, sizeof(xtable_row));
  {
    const test::ExhaustedHeap heap;
    EXPECT_EQ(xtable_new_row(&table, sizeof(xtable_row)), nullptr);
    EXPECT_EQ(xtable_sort(&table, sizeof first, [](auto, auto) { return 0; }), 1U);
  }
  EXPECT_EQ(first->next, last);
  EXPECT_EQ(xtable_index_row(&table), 2U);
  xtable_cleanup(&table);
}

TEST(NoMemory, XmlDropsWhatDoesNotFitAndGoesOn) {
  xml_data doc{};
  for (const uint32_t length : {0U, 1024U}) {
    {
      const test::ExhaustedHeap heap;
      xml_data_str(&doc, "dropped");
    }
    EXPECT_EQ(doc.capacity, 0U);
    EXPECT_EQ(doc.length, length);
    xml_data_append(&doc, nullptr, 1024);
    EXPECT_EQ(doc.capacity, doc.length);
  }
  free(doc.buffer);
}

TEST(NoMemory, ARefreshWithoutUrlAsksForNothing) {
  EXPECT_EQ(test::printed([] {
              putchar('\n');  // stdout takes its buffer
              const test::ExhaustedHeap heap;
              print_head_refresh(1, "/%d", 7);
              print_refresh(nullptr, nullptr, 1, "/%d", 7);
            }),
            "\n<meta http-equiv=\"refresh\">\r\n<html>\r\n<head>\r\n</head>\r\n</html>\r\n");
}

TEST(NoMemory, ASelectAsksForAttributesThatCannotBeMade) {
  const selectbox_callback ask = [](uint32_t operation, uint32_t, uintptr_t) {
    return operation == SELECT_OP_ATTRS ? printf(" asked") : -1;
  };
  EXPECT_EQ(test::printed([&] {
              putchar('\n');  // stdout takes its buffer
              const test::ExhaustedHeap heap;
              gen_xselectbox_num(nullptr, ask, 0, " name=m");
            }),
            "\n<select asked disabled>\r\n</select>\r\n");
}

TEST(NoMemory, BootEnvironmentIsNotThere) {
  const test::ScriptedIoctl device([](int, unsigned long, void* info) {
    static_cast<mtd_info_user*>(info)->type = MTD_NORFLASH;
    static_cast<mtd_info_user*>(info)->size = 5;
    return 0;
  });
  const test::ExhaustedHeap heap;
  EXPECT_EQ(read_uboot_env("/dev/zero"), 4);
  EXPECT_EQ(uboot_getenv("a"), nullptr);
  free_uboot_env();
}

TEST(NoMemory, FilesAndInterfacesAreNotRead) {
  db_row row = {};
  db_row* list = &row;
  char* text = nullptr;
  const test::TempDir dir;
  const test::ExhaustedHeap heap;
  EXPECT_EQ(read_item_alloc("/dev", "null", &text), -1);
  EXPECT_EQ(text, nullptr);
  EXPECT_EQ(read_item_uint_fmt(nullptr, "/dev/null"), -1);
  EXPECT_EQ(remove_dir_leaf(dir.c_str()), 0) << "unlisted, but empty";
  EXPECT_EQ(rd_file_line("/dev/null", nullptr, 0), -1);
  EXPECT_EQ(read_db_file("/dev/null", 2, &list), -1);
  EXPECT_EQ(list, nullptr);
  EXPECT_EQ(read_copn_file("/dev/null"), -1);
  EXPECT_EQ(read_interface_conf(nullptr, nullptr), -1);
  EXPECT_EQ(read_interface6_conf(nullptr, nullptr), -1);
  EXPECT_EQ(remove_filef("%s", "/none"), -1);
}

TEST(NoMemory, AQueryIsCopiedAndCountedAsFarAsItGoes) {
  setenv("REQUEST_METHOD", "GET", 1);
  setenv("QUERY_STRING", "a&b", 1);
  const cgi_handler called = [](void*, cgi_attr*, int32_t, int32_t) { return 9; };
  const int32_t results[] = {0, 2, 9};
  for (size_t granted = 0; granted < 3; ++granted) {
    const test::ExhaustedHeap heap(granted);
    EXPECT_EQ(getcgivars(nullptr, called, nullptr), results[granted]);
  }
}

TEST(NoMemory, AnEscapedCopyIsCutShortAndATitleDropped) {
  const std::string text(9000, 'x');
  char* out = nullptr;
  {
    const test::ExhaustedHeap heap(1);
    EXPECT_EQ(html_asprint_text(&out, text.c_str()), 4096);
  }
  EXPECT_STREQ(out, text.substr(0, 4096 - 15).c_str());
  free(out);
  for (size_t granted : {0, 1}) {
    const test::ExhaustedHeap heap(granted);
    char* title = nullptr;
    EXPECT_EQ(asprint_title(&title, "a"), -1);
    EXPECT_EQ(title, nullptr);
  }
}

TEST(NoMemory, AnAddressAheadOfAPrefixFallsBack) {
  ipv4_cidr value = {5, 5};
  const test::ExhaustedHeap heap;
  EXPECT_EQ(scan_ipv4cidr("10.1.2.3/24", &value, 77, 0), 1);
  EXPECT_EQ(value.address, 77U);
  EXPECT_EQ(value.prefix, 24U);
}

TEST(NoMemory, ATextAreasFileStaysAsItIs) {
  const test::TempDir dir;
  dir.put("text", "old");
  char untouched[] = "";
  char* text = untouched;
  {
    const test::ExhaustedHeap heap;
    EXPECT_EQ(get_textarea_file(&text, dir.c_str(), "text", 9), -1);
    EXPECT_EQ(update_textarea_file(dir.c_str(), "text", "new", 9), -2);
  }
  EXPECT_EQ(text, untouched);
  EXPECT_EQ(dir.get("text"), "old");
}

}  // namespace
