// Tables of texts: rows "input=output" apart by "|", so that many of them stand on a line.
#pragma once

#include <gtest/gtest.h>

#include <sstream>
#include <string>

namespace test {

// Values as a text, with a blank between two of them.
template <typename First, typename... More>
std::string joined(const First& first, const More&... more) {
  std::ostringstream text;
  text << first;
  ((text << ' ' << more), ...);
  return text.str();
}

// Expects make(input) to give the output of each row. A failure shows the table beside the one that
// came out.
template <typename Make>
void expect_rows(const std::string& table, Make make) {
  std::string made;
  for (size_t at = 0; at <= table.size();) {
    const std::string row = table.substr(at, table.find('|', at) - at);
    const std::string input = row.substr(0, row.find('='));
    made += (at == 0 ? "" : "|") + input + "=" + joined(make(input.c_str()));
    at += row.size() + 1;
  }
  EXPECT_EQ(made, table);
}

}  // namespace test
