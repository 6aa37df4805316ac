// Pages of expected output, in files beside the tests.
#pragma once

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>

#include "support/capture.h"

namespace test {

// Expects a piece of code to print the bytes of a file, which is named from the folder of the
// tests.
template <typename Body>
void expect_page(const std::string& name, Body body) {
  std::ifstream file(TEST_SOURCES "/" + name, std::ios::binary);
  EXPECT_EQ(printed(body), std::string(std::istreambuf_iterator(file), {}));
}

}  // namespace test
