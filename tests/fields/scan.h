// What the tests of the functions that take a submitted text apart have in common.
#pragma once

#include "support/rows.h"

namespace test {

// For rows of texts: what scan makes of a value that it changes. It tells the change once, and no
// change the second time nor for a null argument.
template <typename Value, typename Scan, typename... Limits>
auto scan(Value before, Scan scan, Limits... limits) {
  return [=](const char* text) {
    Value held = before;
    EXPECT_EQ(scan(text, &held, limits...), 1) << text;
    EXPECT_EQ(scan(text, &held, limits...), 0) << text;
    EXPECT_EQ(scan(nullptr, &held, limits...) + scan(text, nullptr, limits...), 0) << text;
    return held;
  };
}

}  // namespace test
