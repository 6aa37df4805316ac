#include <gtest/gtest.h>

#include "support/page_process.h"

namespace {

using test::PageAnswer;
using test::PageRequest;

PageAnswer upload(const std::string& body, size_t piece = 0,
                  const std::vector<std::string>& arguments = {},
                  const std::string& type = "multipart/form-data; boundary=B",
                  const std::string& page = "upload") {
  const PageRequest request{{{"REQUEST_METHOD", "POST"},
                             {"CONTENT_TYPE", type},
                             {"QUERY_STRING", "q=1"},
                             {"CONTENT_LENGTH", std::to_string(body.size())}},
                            body,
                            piece,
                            arguments};
  return test::run_page(test::page_program(page), request);
}

const std::string kFirst = "kind 3 count 1\n[boundary]=[B]\n";
const std::string kLast = "kind 3 count 0\nresult 7\n";

// A form as a browser sends it, with an epilogue.
const std::string kForm =
    "--B\r\n"
    "Content-Disposition: form-data; name=\"note\"\r\n"
    "\r\n"
    "two\r\nlines\r\n"
    "--B\r\n"
    "Content-Disposition: form-data; name=\"file\"; filename=\"a;b.txt\"\r\n"
    "Content-Type: text/plain\r\n"
    "\r\n"
    "\r\n--\r\n--b\r\n\r\n--B\r\n"
    "content-type: a/b \r\n"
    "\r\n"
    "\r\n--B--\r\nepilogue";
const std::string kFormParts[] = {
    "kind 3 count 3\n[boundary]=[B]\n[Content-Disposition]=[form-data]\n[name]=[note] of 1\n"
    "{two\r\nlines} 0\n",
    "kind 3 count 5\n[boundary]=[B]\n[Content-Disposition]=[form-data]\n[name]=[file] of 1\n"
    "[filename]=[a;b.txt] of 1\n[Content-Type]=[text/plain]\n{\r\n--\r\n--b\r\n} 0\n",
    "kind 3 count 2\n[boundary]=[B]\n[content-type]=[a/b ]\n{} 9\n"};

TEST(Multipart, HandsOutEachPartAndLeavesTheEpilogue) {
  for (const size_t piece : {0, 1, 3, 4096}) {
    const PageAnswer answer = upload(kForm, piece);
    EXPECT_EQ(answer.output, kFirst + kFormParts[0] + kFormParts[1] + kFormParts[2] + kLast);
    EXPECT_EQ(answer.unread, piece == 0 ? 8U : 0U);
  }
}

TEST(Multipart, EndsInOrderWhereverTheInputBreaksOff) {
  const std::string delimiter = "\r\n--B";
  for (size_t cut = 1; cut < kForm.find("epilogue"); ++cut) {
    const PageAnswer answer = upload(kForm.substr(0, cut));
    std::string complete = kFirst;
    size_t end = 0;
    for (const std::string& part : kFormParts) {
      end = kForm.find(delimiter, end) + delimiter.size() + 2;
      if (cut >= end) complete += part;
    }
    EXPECT_EQ(answer.output.substr(0, complete.size()), complete) << cut;
    EXPECT_EQ(answer.output.substr(answer.output.size() - kLast.size()), kLast) << cut;
    EXPECT_EQ(answer.unread, 0U) << cut;
  }
}

TEST(Multipart, MakesRecordsOfHeaderLines) {
  const std::string disposition = "[Content-Disposition]=[form-data]\n";
  const struct {
    std::string lines;
    int count;
    std::string records, body = "x";
  } cases[] = {
      {"Content-Disposition: form-data; name=f\r\n", 2, disposition},
      {"Content-Disposition: form-data; name=\"f\r\n", 2, disposition},
      {"Content-Disposition: form-data; name\r\n", 2, disposition},
      {"Content-Disposition: form-data; name=\"f\" ; x=\"y\"\r\n", 3,
       disposition + "[name]=[f] of 1\n"},
      {"Content-Disposition: form-data;\t name=\"\";x=\"%41+\\\r\n", 3,
       disposition + "[name]=[] of 1\n"},
      {"Content-Disposition: form-data; x; name=\"f\"\r\n", 3,
       disposition + "[x; name]=[f] of 1\n"},
      {"Content-Disposition: form-data; filename=\"a;b\"\r\n", 3,
       disposition + "[filename]=[a;b] of 1\n"},
      {"CONTENT-A:b\r\nX-Other: 1\r\nContent-\r\nContentious: x\r\nContent-:\t\r\n", 3,
       "[CONTENT-A]=[b]\n[Content-]=[]\n"},
      {"Content-A: 1\r\nContent-B: 2\r\nContent-C: 3\r\nContent-D: 4\r\nContent-E: 5\r\n", 6,
       "[Content-A]=[1]\n[Content-B]=[2]\n[Content-C]=[3]\n[Content-D]=[4]\n[Content-E]=[5]\n",
       "\r\nx"},
      {"Content-A: 1; a=\"1\";b=\"2\";c=\"3\";d=\"4\";e=\"5\"\r\nContent-B: 2\r\n", 6,
       "[Content-A]=[1]\n[a]=[1] of 1\n[b]=[2] of 1\n[c]=[3] of 1\n[d]=[4] of 1\n"},
      {"Content-A: 1; a=\"1\"\r\nContent-B: 2; b=\"3\"; c=\"4\"\r\n", 6,
       "[Content-A]=[1]\n[a]=[1] of 1\n[Content-B]=[2]\n[b]=[3] of 3\n[c]=[4] of 3\n"},
      {"Content-A: " + std::string(1011, 'v') + "\r\n", 2,
       "[Content-A]=[" + std::string(1011, 'v') + "]\n"},
  };
  for (const auto& c : cases) {
    const PageAnswer answer = upload("--B\r\n" + c.lines + "\r\nx\r\n--B--\r\n");
    EXPECT_EQ(answer.output, kFirst + "kind 3 count " + std::to_string(c.count) +
                                 "\n[boundary]=[B]\n" + c.records + "{" + c.body + "} 9\n" + kLast);
    EXPECT_EQ(answer.unread, 0U);
  }
}

TEST(Multipart, SkipsPartsWithoutHeaderLines) {
  const std::string part = "Content-A: 1\r\n\r\nx\r\n--B--\r\n";
  const std::string shown = "kind 3 count 2\n[boundary]=[B]\n[Content-A]=[1]\n{x} 9\n";
  for (const char* ahead : {"preamble\r\n--B\r\n", "pre\r\n\r\namble\r\n--B\r\n",
                            "--B\r\nX-Other: 1\r\n\r\nskipped\r\n\r\n--B\r\n"}) {
    EXPECT_EQ(upload(ahead + part).output, kFirst + shown + kLast);
  }
  const PageAnswer none = upload(kForm, 0, {"none"});
  EXPECT_EQ(none.output, "result 0\n");
  EXPECT_EQ(none.unread, 8U);
}

TEST(Multipart, FollowsTheHandlersResult) {
  const PageAnswer stopped = upload(kForm, 0, {"stop", "-5"});
  EXPECT_EQ(stopped.output.substr(stopped.output.find("[name]")),
            "[name]=[note] of 1\nkind 3 count 0\nresult -5\n");
  EXPECT_EQ(stopped.unread, kForm.size() - kForm.find("two\r\n"));
  const PageAnswer left = upload(kForm, 0, {"leave"});
  EXPECT_EQ(left.output, kFirst + kFormParts[0].substr(0, kFormParts[0].find('{')) + kFormParts[1] +
                             kFormParts[2] + kLast);
}

TEST(Multipart, TakesTheBoundaryAsItCame) {
  const std::string form = "--B\r\nContent-A: 1\r\n\r\nx\r\n--B--\r\n";
  const struct {
    std::string type, boundary, scan;
  } cases[] = {
      {"Multipart/Form-Data;   BOUNDARY=B", "B", "x} 9"},
      {"multipart/form-data;\t\r\n\v\fboundary=B", "B", "x} 9"},
      {";boundary=B", "B", "x} 9"},
      {"multipart/form-data; boundary=\"B\"", "\"B\"", "x\r\n--B-} 2"},
      {"multipart/form-data; boundary=B; charset=x", "B; charset=x", "x} 2"},
      {"multipart/form-data; boundary=", "", "} 2"},
      {"multipart/form-data; boundary=" + std::string(8000, 'B'), std::string(8000, 'B'), "} 2"},
  };
  for (const auto& c : cases) {
    const std::string record = "[boundary]=[" + c.boundary + "]\n";
    EXPECT_EQ(upload(form, 0, {}, c.type).output, "kind 3 count 1\n" + record + "kind 3 count 2\n" +
                                                      record + "[Content-A]=[1]\n{" + c.scan +
                                                      "\n" + kLast);
  }
}

TEST(Multipart, QueryHandlerGoesAheadAndCanStop) {
  const PageAnswer stopped =
      upload(kForm, 0, {"both", "-2"}, "multipart/form-data; boundary=B", "echo");
  EXPECT_EQ(stopped.output, "echo kind 1 count 1\n[q]=[1]\nresult -2\n");
  EXPECT_EQ(stopped.unread, kForm.size());
}

TEST(Multipart, EndsWithAMessageWhenALineCannotBeRead) {
  const PageAnswer unread =
      upload(kForm, 0, {"body", "0", "0", "unreadable"}, "multipart/form-data; boundary=B", "echo");
  EXPECT_EQ(unread.output, "echo " + kFirst +
                               "Content-Type: text/plain\r\n\r\n"
                               "cgidecode(): Couldn't read multipart line from STDIN.\r\n");
  EXPECT_EQ(unread.status, 1);
}

}  // namespace
