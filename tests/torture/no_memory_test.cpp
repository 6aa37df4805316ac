#include <gtest/gtest.h>

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

}  // namespace
