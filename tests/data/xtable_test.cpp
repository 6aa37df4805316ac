#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "tavik.h"

namespace {

struct Row {
  xtable_row prefix;
  uint32_t key;
};

constexpr uint32_t kWidth = sizeof(xtable_row*);

uint32_t& key(xtable_row* row) {
  return reinterpret_cast<Row*>(row)->key;
}

int compare_keys(const void* left, const void* right) {
  const uint32_t a = key(*static_cast<xtable_row* const*>(left));
  const uint32_t b = key(*static_cast<xtable_row* const*>(right));
  return a < b ? -1 : a > b;
}

// The rows in their order, numbered and linked both ways.
void expect_rows(const xtable& table, const std::vector<xtable_row*>& model) {
  const xtable_row* before = nullptr;
  const xtable_row* row = table.head;
  for (uint32_t number = 1; number <= model.size(); before = row, row = row->next, ++number) {
    ASSERT_EQ(std::tuple(row, row->prev, row->index),
              std::tuple(model[number - 1], before, number));
  }
  ASSERT_EQ(row, nullptr);
  ASSERT_EQ(table.tail, before);
}

TEST(XTable, FollowsAModelThroughRandomSteps) {
  std::mt19937 random(1);
  xtable table{};
  std::vector<xtable_row*> model;
  EXPECT_EQ(xtable_new_row(&table, sizeof(xtable_row) - 1), nullptr);
  for (int step = 0; step < 20000; ++step) {
    const auto size = static_cast<uint32_t>(model.size());
    const uint32_t index = random() % (size + 2), action = random() % 8;
    const bool exists = index >= 1 && index <= size;
    const auto place = model.begin() + (exists ? index - 1 : 0);
    ASSERT_EQ(xtable_search_row(&table, index), exists ? *place : nullptr);
    if (action == 0) {
      ASSERT_EQ(xtable_del_row(&table, index), exists);
      if (exists) model.erase(place);
    } else if (action == 1 && exists) {
      xtable_rm_row(&table, *place);
      model.erase(place);
      ASSERT_EQ(xtable_index_row(&table), size - 1);
    } else if (action == 2) {
      ASSERT_EQ(xtable_move_up_row(&table, index), exists && index > 1);
      if (exists && index > 1) std::swap(place[0], place[-1]);
    } else if (action == 3) {
      ASSERT_EQ(xtable_move_dn_row(&table, index), exists && index < size);
      if (exists && index < size) std::swap(place[0], place[1]);
    } else if (action == 4 && step % 8 == 0) {
      ASSERT_EQ(xtable_sort(&table, kWidth, compare_keys), size > 0);
      std::sort(model.begin(), model.end(), [](auto* a, auto* b) { return key(a) < key(b); });
    } else if (action == 4 && step % 8 == 1) {
      // Without a width, an order or the right numbers there is no sorting.
      ASSERT_EQ(xtable_sort(&table, kWidth + 1, compare_keys), size > 0);
      ASSERT_EQ(xtable_sort(&table, kWidth, nullptr), size > 0);
      if (size > 1) table.tail->index = std::array{0U, 1U, size + 1, UINT32_MAX}[random() % 4];
      ASSERT_EQ(xtable_sort(&table, kWidth, compare_keys), size > 0 && table.tail->index > 0);
      ASSERT_EQ(xtable_index_row(&table), size);
    } else if (action == 4 && step % 64 == 2) {
      xtable_cleanup(&table);
      model.clear();
    } else if (action > 4) {
      model.push_back(xtable_new_row(&table, sizeof(Row)));
      ASSERT_EQ(key(model.back()), 0U);
      key(model.back()) = random();
    }
    ASSERT_NO_FATAL_FAILURE(expect_rows(table, model)) << "step " << step;
  }
  xtable_cleanup(&table);
}

}  // namespace
