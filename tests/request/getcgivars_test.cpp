#include <gtest/gtest.h>

#include "support/page_process.h"

namespace {

using std::string;
using test::PageRequest;

const string kForm = "application/x-www-form-urlencoded";
const string kUpload = "multipart/form-data; boundary=B";

PageRequest post(const string& type, const string& body, std::vector<string> arguments = {"b"}) {
  return {{{"REQUEST_METHOD", "POST"},
           {"QUERY_STRING", "q=1"},
           {"CONTENT_TYPE", type},
           {"CONTENT_LENGTH", std::to_string(body.size())}},
          body,
          0,
          std::move(arguments)};
}

// All that the page prints, then its status and the bytes of the body left, where they are not 0.
string echo(const PageRequest& request) {
  const auto [output, status, left] = test::run_page(test::page_program("echo"), request);
  return output + (status == 0 ? "" : "exit " + std::to_string(status)) +
         (left == 0 ? "" : " left " + std::to_string(left));
}

TEST(GetCgiVars, DecodesTheQueryOfAGet) {
  const std::array<const char*, 4> cases[] = {
      {"GET", nullptr, "bq", "result 0\n"},
      {"GET", "", "bq", "result 0\n"},
      {"GET", "&", "bq", "0{=|=|}result 7\n"},
      {"GET",
       "a=1;b&&=x&a=b=c&a+b=c+d&a%2Bb=%26%3B%3D%25&x=ab%&x=ab%4;x=%zz%41%4a%4A&"
       "x=a%00b&%%41=%4%31&c=%;",
       "q",
       "0{a=1|b=|=|=x|a=b=c|a b=c d|a+b=&;=%|x=ab|x=ab|x=SAJJ|x=a|T1=531|c=|=|}"
       "result 7\n"},
      {"HEAD", "a=1", "bq", "0{a=1|}result 7\n"},
      {"GET", "a", "b", "0{a=|}result 7\n"},
      {"GET", "a&b", "", "result 2\n"}};
  for (const auto& [method, query, handlers, expected] : cases) {
    PageRequest request{{{"REQUEST_METHOD", method}}, "", 1, {handlers}};
    if (query != nullptr) request.environment["QUERY_STRING"] = query;
    EXPECT_EQ(echo(request), expected);
  }
}

TEST(GetCgiVars, DecodesQueryThenBodyOfAPost) {
  const string value(9 << 20, 'v');
  const std::tuple<std::vector<string>, string, string, string> cases[] = {
      {{"bq"}, "q=1", "b=2", "1{q=1|}2{b=2|}result 8\n"},
      {{"bq"}, "", "b=2", "2{b=2|}result 8\n"},
      {{"b"}, "q=1", "b=" + value, "2{b=" + value + "|}result 8\n"},
      {{"bq", "5", "-3"}, "q=1", "b=2", "1{q=1|}2{b=2|}result -3\n"},
      // The body is read even if the query stops the request.
      {{"bq", "-2"}, "q=1", "b=2", "1{q=1|}result -2\n"},
      {{"q"}, "", "a&b;", "result 3\n"}};
  for (const auto& [arguments, query, body, expected] : cases) {
    PageRequest request = post("APPLICATION/X-WWW-form-URLENCODED", body, arguments);
    request.environment["QUERY_STRING"] = query;
    for (const size_t piece : {0, 1, 3, 4096}) {
      if (body.size() > 9 && piece < 4096) continue;
      request.piece = piece;
      EXPECT_EQ(echo(request), expected) << piece;
    }
  }
}

TEST(GetCgiVars, ReadsNoMoreThanContentLengthAndTakesAShorterBody) {
  PageRequest request = post(kForm, "abc=defg");
  request.environment["CONTENT_LENGTH"] = "5";
  EXPECT_EQ(echo(request), "2{abc=d|}result 8\n left 3");
  request.environment["CONTENT_LENGTH"] = " 500 bytes";
  EXPECT_EQ(echo(request), "2{abc=defg|}result 8\n");
  request.body = "";
  EXPECT_EQ(echo(request), "result 0\n");
}

TEST(GetCgiVars, EndsWithAMessageWhereTheRequestCannotBeServed) {
  const string text = "Content-Type: text/plain\r\n\r\n";
  const char verb[] = "Unsupported REQUEST_METHOD.", media[] = "Unsupported Content-Type.",
             size[] = "No Content-Length was sent with the POST request.",
             memory[] = "Couldn't malloc for cgiinput.";
  const std::tuple<const char*, string, const char*, const char*> cases[] = {
      {nullptr, kForm, "3", "no REQUEST_METHOD specified."},
      {"get", kForm, "3", verb},
      {"PUT", kForm, "3", verb},
      {"POST", "", "3", media},
      {"POST", kForm + "; charset=UTF-8", "3", media},
      {"POST", "application/x-www-", "3", media},
      {"POST", "multipart/form-data", "3", media},
      {"POST", "multipart/form-datax; boundary=B", "3", media},
      {"POST", "multipart/form-data; charset=x; boundary=B", "3", media},
      {"POST", "; boundary B", "3", media},
      {"POST", kUpload, nullptr, size},
      {"POST", kForm, nullptr, size},
      {"POST", kForm, "x9", size},
      {"POST", kForm, "-1", memory},
      {"POST", kForm, "-2147483649", memory}};
  for (const auto& [method, type, length, message] : cases) {
    PageRequest request{{}, "a=1", 0, {}};
    if (method != nullptr) request.environment["REQUEST_METHOD"] = method;
    if (!type.empty()) request.environment["CONTENT_TYPE"] = type;
    if (length != nullptr) request.environment["CONTENT_LENGTH"] = length;
    EXPECT_EQ(echo(request), text + "getcgivars(): " + message + "\r\nexit 1 left 3");
  }
  const std::vector<string> unreadable = {"b", "7", "8", "unreadable"};
  EXPECT_EQ(echo(post(kForm, "a=1", unreadable)),
            text + "getcgivars(): Couldn't read CGI input from STDIN.\r\nexit 1 left 3");
  EXPECT_EQ(echo(post(kUpload, "a=1", unreadable)),
            "3{boundary=B|}" + text +
                "cgidecode(): Couldn't read multipart line from STDIN.\r\nexit 1 left 3");
}

const string kFirst = "3{boundary=B|}", kLast = "3{}result 8\n";

// A form as a browser sends it, and what a page finds in each of its parts.
const std::pair<string, string> kParts[] = {
    {"--B\r\n", kFirst},
    {"Content-Disposition: form-data; name=\"note\"\r\n\r\ntwo\r\nlines\r\n--B\r\n",
     "3{boundary=B|Content-Disposition=form-data|name=note|^1|}two\r\nlines<0"},
    {"Content-Disposition: form-data; name=\"file\"; filename=\"a;b.txt\"\r\n"
     "Content-Type: text/plain\r\n\r\n\r\n--\r\n--b\r\n\r\n--B\r\n",
     "3{boundary=B|Content-Disposition=form-data|name=file|^1|filename=a;b.txt|^1|"
     "Content-Type=text/plain|}\r\n--\r\n--b\r\n<0"},
    {"content-type: a/b \r\n\r\n\r\n--B--\r\n", "3{boundary=B|content-type=a/b |}<9"}};

TEST(Multipart, HandsOutPartsUpToTheEpilogueOrWhereverTheInputBreaksOff) {
  string form, found;
  for (const auto& [text, part] : kParts) {
    for (size_t cut = 1; cut < text.size(); ++cut) {
      const string told = echo(post(kUpload, form + text.substr(0, cut)));
      EXPECT_EQ(told.substr(0, found.size()), found) << form + text.substr(0, cut);
      EXPECT_TRUE(told.ends_with(kLast)) << told;
    }
    form += text;
    found += part;
  }
  PageRequest request = post(kUpload, form + "epilogue");
  EXPECT_EQ(echo(request), found + kLast + " left 8");
  for (request.piece = 1; request.piece < 5; request.piece += 2) {
    EXPECT_EQ(echo(request), found + kLast);
  }
  request = post(kUpload, form, {"bq", "-2"});
  EXPECT_EQ(echo(request), "1{q=1|}result -2\n left " + std::to_string(form.size()));
  request.arguments = {""};
  EXPECT_EQ(echo(request), "result 0\n");
  // Neither takes the first part's body: what is left of the form are its last bytes.
  request.arguments = {"b", "7", "-5", "stop"};
  const string first = kFirst + kParts[1].second.substr(0, kParts[1].second.find("two"));
  EXPECT_EQ(echo(request),
            first + "3{}result -5\n left " + std::to_string(form.size() - form.find("two")));
  request.arguments = {"b", "7", "8", "leave"};
  EXPECT_EQ(echo(request), first + kParts[2].second + kParts[3].second + kLast);
}

TEST(Multipart, MakesRecordsOfHeaderLines) {
  const string disposition = "Content-Disposition=form-data|", value(1011, 'v');
  const struct {
    string lines, records, body = "x";
  } cases[] = {
      {"Content-Disposition: form-data; name=f\r\n", disposition},
      {"Content-Disposition: form-data; name=\"f\r\n", disposition},
      {"Content-Disposition: form-data; name\r\n", disposition},
      {"Content-Disposition: form-data; name=\"f\" ; x=\"y\"\r\n", disposition + "name=f|^1|"},
      {"Content-Disposition: form-data;\t name=\"\";x=\"%41+\\\r\n", disposition + "name=|^1|"},
      {"Content-Disposition: form-data; x; name=\"f;\"\r\n", disposition + "x; name=f;|^1|"},
      {"CONTENT-A:b\r\nX-Other: 1\r\nContent-\r\nContentious: x\r\nContent-:\t\r\n",
       "CONTENT-A=b|Content-=|"},
      {"Content-A: 1\r\nContent-B: 2\r\nContent-C: 3\r\nContent-D: 4\r\nContent-E: 5\r\n",
       "Content-A=1|Content-B=2|Content-C=3|Content-D=4|Content-E=5|", "\r\nx"},
      {"Content-A: 1; a=\"1\";b=\"2\";c=\"3\";d=\"4\";e=\"5\"\r\nContent-B: 2\r\n",
       "Content-A=1|a=1|^1|b=2|^1|c=3|^1|d=4|^1|"},
      {"Content-A: 1; a=\"1\"\r\nContent-B: 2; b=\"3\"; c=\"4\"\r\n",
       "Content-A=1|a=1|^1|Content-B=2|b=3|^3|c=4|^3|"},
      {"Content-A: " + value + "\r\n", "Content-A=" + value + "|"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(echo(post(kUpload, "--B\r\n" + c.lines + "\r\nx\r\n--B--\r\n")),
              kFirst + "3{boundary=B|" + c.records + "}" + c.body + "<9" + kLast);
  }
  // Parts without a record are passed over.
  for (const char* ahead : {"preamble\r\n--B\r\n", "pre\r\n\r\namble\r\n--B\r\n",
                            "--B\r\nX-Other: 1\r\n\r\nskipped\r\n\r\n--B\r\n"}) {
    EXPECT_EQ(echo(post(kUpload, ahead + kParts[3].first)), kFirst + kParts[3].second + kLast);
  }
}

TEST(Multipart, TakesTheBoundaryAsItCame) {
  const string start = "multipart/form-data; boundary=", wide(8000, 'B');
  const std::array<string, 4> cases[] = {
      {"Multipart/Form-Data;   BOUNDARY=B", "B", "x<9"},
      {"multipart/form-data;\t\r\n\v\fboundary=B", "B", "x<9"},
      {";boundary=B", "B", "x<9"},
      {start + "\"B\"", "\"B\"", "x\r\n--B-<2"},
      {start + "B; charset=x", "B; charset=x", "x<2"},
      {start, "", "<2", " left 10"},
      {start + wide, wide, "<2", " left 10"},
  };
  for (const auto& [type, boundary, scan, left] : cases) {
    const string record = "3{boundary=" + boundary + "|";
    EXPECT_EQ(echo(post(type, "--B\r\nContent-A: 1\r\n\r\nx\r\n--B--\r\n")),
              record + "}" + record + "Content-A=1|}" + scan + kLast + left);
  }
}

}  // namespace
