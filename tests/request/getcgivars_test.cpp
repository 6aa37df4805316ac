#include <gtest/gtest.h>

#include "support/page_process.h"

namespace {

using test::PageAnswer;
using test::PageRequest;

PageAnswer echo(const PageRequest& request) {
  return test::run_page(test::page_program("echo"), request);
}

PageRequest get(const std::string& query, std::vector<std::string> arguments = {}) {
  return {{{"REQUEST_METHOD", "GET"}, {"QUERY_STRING", query}}, "", 1, std::move(arguments)};
}

PageRequest post(const std::string& body, std::vector<std::string> arguments = {}) {
  return {{{"REQUEST_METHOD", "POST"},
           {"CONTENT_TYPE", "application/x-www-form-urlencoded"},
           {"CONTENT_LENGTH", std::to_string(body.size())}},
          body,
          4096,
          std::move(arguments)};
}

TEST(GetCgiVars, SplitsAndDecodesPairs) {
  const struct {
    std::string query, expected;
  } cases[] = {
      {"", "result 0\n"},
      {"a=1&b=2;c", "echo kind 0 count 3\n[a]=[1]\n[b]=[2]\n[c]=[]\nresult 7\n"},
      {"a=1&", "echo kind 0 count 2\n[a]=[1]\n[]=[]\nresult 7\n"},
      {"&", "echo kind 0 count 2\n[]=[]\n[]=[]\nresult 7\n"},
      {"a=1&&b=2", "echo kind 0 count 3\n[a]=[1]\n[]=[]\n[b]=[2]\nresult 7\n"},
      {"=x", "echo kind 0 count 1\n[]=[x]\nresult 7\n"},
      {"a=b=c", "echo kind 0 count 1\n[a]=[b=c]\nresult 7\n"},
      {"a+b=c+d", "echo kind 0 count 1\n[a b]=[c d]\nresult 7\n"},
      {"a%2Bb=%26%3B%3D%25", "echo kind 0 count 1\n[a+b]=[&;=%]\nresult 7\n"},
      {"x=ab%", "echo kind 0 count 1\n[x]=[ab]\nresult 7\n"},
      {"x=ab%4", "echo kind 0 count 1\n[x]=[ab]\nresult 7\n"},
      {"x=%zz%41%4a%4A", "echo kind 0 count 1\n[x]=[SAJJ]\nresult 7\n"},
      {"x=a%00b&c=%", "echo kind 0 count 2\n[x]=[a]\n[c]=[]\nresult 7\n"},
      {"%%41=%4%31", "echo kind 0 count 1\n[T1]=[531]\nresult 7\n"},

  };
  for (const auto& c : cases) EXPECT_EQ(echo(get(c.query)).output, c.expected) << c.query;
}

TEST(GetCgiVars, ChoosesTheHandler) {
  PageRequest head = get("a=1");
  head.environment["REQUEST_METHOD"] = "HEAD";
  EXPECT_EQ(echo(head).output, "echo kind 0 count 1\n[a]=[1]\nresult 7\n");
  EXPECT_EQ(echo(get("a", {"body"})).output, "echo kind 0 count 1\n[a]=[]\nresult 7\n");
  EXPECT_EQ(echo(get("a&b", {"none"})).output, "result 2\n");
  EXPECT_EQ(echo(post("a&b", {"none"})).output, "result 2\n");
  EXPECT_EQ(echo(post("a&b;", {"query"})).output, "result 3\n");
  PageRequest no_query = get("");
  no_query.environment.erase("QUERY_STRING");
  EXPECT_EQ(echo(no_query).output, "result 0\n");
}

TEST(GetCgiVars, PostDecodesQueryThenBody) {
  const std::string query_part = "echo kind 1 count 1\n[q]=[1]\n";
  const std::string body_part = "echo kind 2 count 1\n[b]=[2]\n";
  const struct {
    std::vector<std::string> arguments;
    std::string query, expected;
  } cases[] = {
      {{"both"}, "q=1", query_part + body_part + "result 8\n"},
      {{"body"}, "q=1", body_part + "result 8\n"},
      {{"both"}, "", body_part + "result 8\n"},
      {{"both", "5", "-3"}, "q=1", query_part + body_part + "result -3\n"},
      {{"both", "-2"}, "q=1", query_part + "result -2\n"},
  };
  for (const auto& c : cases) {
    for (const size_t piece : {0, 1, 3, 4096}) {
      PageRequest request = post("b=2", c.arguments);
      request.environment["QUERY_STRING"] = c.query;
      request.piece = piece;
      const PageAnswer answer = echo(request);
      EXPECT_EQ(answer.output, c.expected);
      EXPECT_EQ(answer.unread, 0U) << "the body is read even if the query stops the request";
    }
  }
}

TEST(GetCgiVars, ReadsNoMoreThanContentLengthAndTakesAShorterBody) {
  PageRequest request = post("abc=defg");
  request.piece = 0;
  request.environment["CONTENT_LENGTH"] = "5";
  const PageAnswer answer = echo(request);
  EXPECT_EQ(answer.output, "echo kind 2 count 1\n[abc]=[d]\nresult 8\n");
  EXPECT_EQ(answer.unread, 3U);
  request.environment["CONTENT_LENGTH"] = " 500 bytes";
  EXPECT_EQ(echo(request).output, "echo kind 2 count 1\n[abc]=[defg]\nresult 8\n");
  request.body = "";
  EXPECT_EQ(echo(request).output, "result 0\n");
}

TEST(GetCgiVars, TakesManyFieldsAndLongValues) {
  std::string many = "f0=0";
  for (int i = 1; i < 10000; ++i) many += "&f" + std::to_string(i) + "=" + std::to_string(i);
  const std::string out = echo(post(many)).output;
  EXPECT_EQ(out.find("echo kind 2 count 10000\n"), 0U);
  EXPECT_NE(out.find("[f9999]=[9999]\nresult 8\n"), std::string::npos);
  const std::string value(9 << 20, 'v');
  EXPECT_EQ(echo(post("big=" + value)).output,
            "echo kind 2 count 1\n[big]=[" + value + "]\nresult 8\n");
}

TEST(GetCgiVars, EndsWithAMessageWhereTheRequestCannotBeServed) {
  const std::string type = "getcgivars(): Unsupported Content-Type.\r";
  const std::string length = "getcgivars(): No Content-Length was sent with the POST request.\r";
  const std::string memory = "getcgivars(): Couldn't malloc for cgiinput.\r";
  const std::string form = "application/x-www-form-urlencoded";
  const struct {
    std::map<std::string, std::string> environment;
    std::string message;
  } cases[] = {
      {{}, "getcgivars(): no REQUEST_METHOD specified.\r"},
      {{{"REQUEST_METHOD", "get"}}, "getcgivars(): Unsupported REQUEST_METHOD.\r"},
      {{{"REQUEST_METHOD", ""}}, "getcgivars(): Unsupported REQUEST_METHOD.\r"},
      {{{"REQUEST_METHOD", "PUT"}}, "getcgivars(): Unsupported REQUEST_METHOD.\r"},
      {{{"REQUEST_METHOD", "POST"}}, type},
      {{{"REQUEST_METHOD", "POST"}, {"CONTENT_TYPE", ""}}, type},
      {{{"REQUEST_METHOD", "POST"}, {"CONTENT_TYPE", form + "; charset=UTF-8"}}, type},
      {{{"REQUEST_METHOD", "POST"}, {"CONTENT_TYPE", form.substr(0, 20)}}, type},
      {{{"REQUEST_METHOD", "POST"}, {"CONTENT_TYPE", "multipart/form-data"}}, type},
      {{{"REQUEST_METHOD", "POST"}, {"CONTENT_TYPE", "multipart/form-data;"}}, type},
      {{{"REQUEST_METHOD", "POST"}, {"CONTENT_TYPE", "multipart/form-datax; boundary=B"}}, type},
      {{{"REQUEST_METHOD", "POST"}, {"CONTENT_TYPE", "multipart/form-data; charset=x; boundary=B"}},
       type},
      {{{"REQUEST_METHOD", "POST"}, {"CONTENT_TYPE", "; boundary B"}}, type},
      {{{"REQUEST_METHOD", "POST"}, {"CONTENT_TYPE", "multipart/form-data; boundary=B"}}, length},
      {{{"REQUEST_METHOD", "POST"}, {"CONTENT_TYPE", form}}, length},
      {{{"REQUEST_METHOD", "POST"}, {"CONTENT_TYPE", form}, {"CONTENT_LENGTH", "x9"}}, length},
      {{{"REQUEST_METHOD", "POST"}, {"CONTENT_TYPE", form}, {"CONTENT_LENGTH", "-1"}}, memory},
      {{{"REQUEST_METHOD", "POST"}, {"CONTENT_TYPE", form}, {"CONTENT_LENGTH", "-2147483649"}},
       memory},
  };
  for (const auto& c : cases) {
    const PageAnswer answer = echo({c.environment, "a=1", 0, {}});
    EXPECT_EQ(answer.output, "Content-Type: text/plain\r\n\r\n" + c.message + "\n");
    EXPECT_EQ(answer.status, 1);
    EXPECT_EQ(answer.unread, 3U);
  }
}

TEST(GetCgiVars, EndsWithAMessageWhenTheBodyCannotBeRead) {
  const PageAnswer answer = echo(post("a=1", {"both", "7", "8", "unreadable"}));
  EXPECT_EQ(answer.output,
            "Content-Type: text/plain\r\n\r\n"
            "getcgivars(): Couldn't read CGI input from STDIN.\r\n");
  EXPECT_EQ(answer.status, 1);
}

TEST(GetCgiVars, AcceptsTheTypeInAnyCase) {
  PageRequest request = post("a=1");
  request.environment["CONTENT_TYPE"] = "APPLICATION/X-WWW-form-URLENCODED";
  EXPECT_EQ(echo(request).output, "echo kind 2 count 1\n[a]=[1]\nresult 8\n");
}

}  // namespace
