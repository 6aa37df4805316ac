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
  EXPECT_EQ(echo(get("")).output, "result 0\n");
  EXPECT_EQ(echo(get("&")).output, "echo kind 0 count 2\n[]=[]\n[]=[]\nresult 7\n");
  EXPECT_EQ(echo(get("a=1;b&&=x&a=b=c&a+b=c+d&a%2Bb=%26%3B%3D%25&x=ab%&x=ab%4;x=%zz%41%4a%4A&"
                     "x=a%00b&%%41=%4%31&c=%;"))
                .output,
            "echo kind 0 count 14\n[a]=[1]\n[b]=[]\n[]=[]\n[]=[x]\n[a]=[b=c]\n[a b]=[c d]\n"
            "[a+b]=[&;=%]\n[x]=[ab]\n[x]=[ab]\n[x]=[SAJJ]\n[x]=[a]\n[T1]=[531]\n[c]=[]\n[]=[]\n"
            "result 7\n");
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
  } cases[] = {{{"both"}, "q=1", query_part + body_part + "result 8\n"},
               {{"body"}, "q=1", body_part + "result 8\n"},
               {{"both"}, "", body_part + "result 8\n"},
               {{"both", "5", "-3"}, "q=1", query_part + body_part + "result -3\n"},
               {{"both", "-2"}, "q=1", query_part + "result -2\n"}};
  for (const auto& c : cases) {
    for (const size_t piece : {0, 1, 3, 4096}) {
      PageRequest request = post("b=2", c.arguments);
      request.environment["QUERY_STRING"] = c.query;
      request.environment["CONTENT_TYPE"] = "APPLICATION/X-WWW-form-URLENCODED";
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
  const std::string method = "getcgivars(): Unsupported REQUEST_METHOD.\r";
  const std::string type = "getcgivars(): Unsupported Content-Type.\r";
  const std::string length = "getcgivars(): No Content-Length was sent with the POST request.\r";
  const std::string memory = "getcgivars(): Couldn't malloc for cgiinput.\r";
  const char* const form = "application/x-www-form-urlencoded";
  const struct {
    const char *method, *type, *length;  // null is unset
    std::string message;
  } cases[] = {{nullptr, form, "3", "getcgivars(): no REQUEST_METHOD specified.\r"},
               {"get", form, "3", method},
               {"PUT", form, "3", method},
               {"POST", nullptr, "3", type},
               {"POST", "", "3", type},
               {"POST", "application/x-www-form-urlencoded; charset=UTF-8", "3", type},
               {"POST", "application/x-www-", "3", type},
               {"POST", "multipart/form-data", "3", type},
               {"POST", "multipart/form-datax; boundary=B", "3", type},
               {"POST", "multipart/form-data; charset=x; boundary=B", "3", type},
               {"POST", "; boundary B", "3", type},
               {"POST", "multipart/form-data; boundary=B", nullptr, length},
               {"POST", form, nullptr, length},
               {"POST", form, "x9", length},
               {"POST", form, "-1", memory},
               {"POST", form, "-2147483649", memory}};
  for (const auto& c : cases) {
    PageRequest request{{}, "a=1", 0, {}};
    if (c.method != nullptr) request.environment["REQUEST_METHOD"] = c.method;
    if (c.type != nullptr) request.environment["CONTENT_TYPE"] = c.type;
    if (c.length != nullptr) request.environment["CONTENT_LENGTH"] = c.length;
    const PageAnswer answer = echo(request);
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

}  // namespace
