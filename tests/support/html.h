// Expected markup as tests write it down.
#pragma once

#include <algorithm>
#include <string>

namespace test {

// Makes a quote of each ' and the reference of a bullet of each *.
inline std::string html(std::string text) {
  std::replace(text.begin(), text.end(), '\'', '"');
  for (size_t at = 0; (at = text.find('*')) != text.npos;) text.replace(at, 1, "&#8226;");
  return text;
}

}  // namespace test
