#include <gtest/gtest.h>

#include <regex>

#include "support/page_process.h"
#include "support/temp_dir.h"

namespace {

// What the guide shows: a request to one of its programs, the answer, what an item holds then.
struct Fence {
  std::string kind;
  std::string text;
};

std::vector<Fence> shown() {
  std::vector<Fence> fences;
  std::ifstream guide(TEST_GUIDE);
  bool inside = false;
  for (std::string line; std::getline(guide, line);) {
    const bool is_edge = line.starts_with("```");
    if (is_edge && !inside) fences.push_back({line.substr(3), ""});
    if (!is_edge && inside) fences.back().text += line + "\n";
    if (is_edge) inside = !inside;
  }
  return fences;
}

// "GET PROGRAM", "POST PROGRAM" with the body in the lines below, or "./PROGRAM".
test::PageAnswer run(const std::string& text, const char* settings) {
  const size_t end = text.find('\n');
  const std::string line = text.substr(0, end);
  std::string body = text.substr(end + 1);
  if (!body.empty()) body.pop_back();
  test::PageRequest request = tavik_harness::get_request();
  if (line.starts_with("POST")) {
    const bool is_form = !body.starts_with("--");
    request.body = is_form ? body : std::regex_replace(body + "\n", std::regex("\n"), "\r\n");
    request.environment = {
        {"REQUEST_METHOD", "POST"},
        {"CONTENT_TYPE", is_form ? "application/x-www-form-urlencoded"
                                 : "multipart/form-data; boundary=" + body.substr(2, 2)},
        {"CONTENT_LENGTH", std::to_string(request.body.size())}};
  }
  request.environment["DEVICE_SETTINGS"] = settings;
  const std::string program = line.substr(line.find_first_of(" /") + 1);
  return test::run_page(test::page_program("../guide/" + program), request);
}

TEST(Guide, ItsProgramsAnswerAsItSays) {
  const test::TempDir settings;
  std::string output;
  int compared = 0;
  for (const auto& [kind, text] : shown()) {
    if (kind == "text request") {
      const test::PageAnswer answer = run(text, settings.c_str());
      EXPECT_EQ(answer.status, 0) << text;
      output = std::regex_replace(answer.output, std::regex("\r"), "");
    } else if (kind == "text answer") {
      EXPECT_EQ(output, text);
      ++compared;
    } else if (kind.starts_with("text item ")) {
      EXPECT_EQ(settings.get(kind.substr(10)), text);
      ++compared;
    }
  }
  EXPECT_GT(compared, 0);
}

}  // namespace
