#include <arpa/inet.h>
#include <gtest/gtest.h>

#include <cstring>

#include "support/capture.h"
#include "tavik.h"

namespace {

using test::printed;

TEST(AddressBox, PrintsTheControl) {
  const uint32_t ip = inet_addr("192.168.1.1");
  const ipv4_cidr net{inet_addr("10.0.0.0"), 8}, beyond{inet_addr("10.0.0.0"), 33};
  sockaddr mac = {};
  memcpy(mac.sa_data, "\x00\x11\x22\xAA\xBB\xCC", 6);
  const struct {
    std::string output;
    const char* expected;  // between the type and the end of the tag
  } cases[] = {{printed([&] { gen_ipv4box("lan", 0, &ip, 0); }),
                R"( name="lan" size="15" maxlength="15" value="192.168.1.1")"},
               {printed([&] { gen_ipv4box(nullptr, ~0U, &ip, PF_READONLY); }),
                R"( size="4294967295" maxlength="15" value="192.168.1.1" readonly)"},
               {printed([&] { gen_xipv4box(-1, &ip, PF_DISABLED, " name=\"%s\"", "<n>"); }),
                R"( maxlength="15" value="192.168.1.1" name="<n>" disabled)"},
               {printed([&] { gen_xipv4box(0, &ip, PF_READONLY, nullptr); }),
                R"( size="15" maxlength="15" value="192.168.1.1" readonly)"},
               {printed([&] { gen_xipv4box(7, &ip, 0, nullptr); }),
                R"( size="7" maxlength="15" value="192.168.1.1")"},
               {printed([&] { gen_ipv4cidr(nullptr, 20, &net, 0); }),
                R"( size="20" maxlength="18" value="10.0.0.0/8")"},
               {printed([&] { gen_ipv4cidr("<n>", 0, &beyond, PF_READONLY); }),
                R"( name="<n>" size="18" maxlength="18" value="10.0.0.0/32" readonly)"},
               {printed([&] { gen_xipv4cidr(0, &beyond, PF_DISABLED, " id=\"%d\"", 5); }),
                R"( size="18" maxlength="18" value="10.0.0.0/32" id="5" disabled)"},
               {printed([&] { gen_xipv4cidr(-1, &net, 0, nullptr); }),
                R"( maxlength="18" value="10.0.0.0/8")"},
               {printed([&] { gen_xmacbox(0, &mac, 0, " name=\"%s\"", "mac"); }),
                R"( maxlength="18" size="18" value="00-11-22-AA-BB-CC" name="mac")"},
               {printed([&] { gen_xmacbox(5, &mac, PF_READONLY, nullptr); }),
                R"( size="5" value="00-11-22-AA-BB-CC" readonly)"},
               {printed([&] { gen_xmacbox(-1, &mac, PF_DISABLED, nullptr); }),
                R"( maxlength="18" value="00-11-22-AA-BB-CC" disabled)"}};
  for (const auto& c : cases) {
    EXPECT_EQ(c.output, std::string("<input type=\"text\"") + c.expected + ">");
  }
  EXPECT_EQ(printed([] {
              gen_ipv4box("x", 0, nullptr, 0), gen_xipv4box(0, nullptr, 0, " x");
              gen_ipv4cidr("x", 0, nullptr, 0), gen_xipv4cidr(0, nullptr, 0, " x");
              gen_xmacbox(0, nullptr, 0, " x");
            }),
            "");
}

int32_t print_icon(uint32_t flags) {
  printf("<i>%x</i>", flags);
  return -1;
}

TEST(Control, PrintsItsElement) {
  const struct {
    std::string output;
    const char* expected;
  } cases[] = {
      {printed([] { EXPECT_EQ(gen_radio("m", 2, 2, nullptr, 0), '>'); }),
       R"(<input type="radio" name="m" value="2" checked>)"},
      {printed([] { gen_radio("<", ~0U, 3, nullptr, PF_CHECKED); }),
       R"(<input type="radio" name="<" value="4294967295" checked>)"},
      {printed([] { gen_radio(nullptr, 0, 1, " id=\"&%s\"", PF_DISABLED); }),
       R"(<input type="radio" value="0" id="&%s" disabled>)"},
      {printed([] { EXPECT_EQ(gen_radio_string("m", "a&", "a&", nullptr, 0), '>'); }),
       R"(<input type="radio" name="m" value="a&" checked>)"},
      {printed([] { gen_radio_string("m", "a", "A", " id", PF_DISABLED); }),
       R"(<input type="radio" name="m" value="a" id disabled>)"},
      {printed([] { gen_radio_string(nullptr, "", nullptr, nullptr, PF_CHECKED); }),
       R"(<input type="radio" value="" checked>)"},
      {printed([] { gen_radio_string("m", nullptr, nullptr, nullptr, 0); }),
       R"(<input type="radio" name="m">)"},
      {printed([] { gen_xbutton("OK", nullptr, PF_SUBMIT, nullptr); }),
       R"(<button type="submit">OK</button>)"},
      {printed([] { gen_xbutton("a<b", print_icon, PF_DISABLED, " name=\"%s\"", "<n>"); }),
       R"(<button type="button" name="<n>" disabled><i>1</i>a&lt;b</button>)"},
      {printed([] { gen_xbutton(nullptr, nullptr, 0, nullptr); }),
       R"(<button type="button"></button>)"},
      {printed([] { gen_image("/img/", "a.png", nullptr, nullptr); }), R"(<img src="/img/a.png">)"},
      {printed([] { gen_image("", "a&b", "\"%s", " width=\"%d\"", 16); }),
       R"(<img src="a&b" alt="&quot;%s" width="16">)"},
      {printed([] { gen_image("/img/", nullptr, "a", " x"), gen_image(nullptr, "a", "a", " x"); }),
       ""},
      {printed([] { EXPECT_EQ(gen_upload(PF_DISABLED, " name=\"%s\"", "f"), '>'); }),
       R"(<input type="file" name="f" disabled>)"},
      {printed([] { gen_upload(0, nullptr); }), R"(<input type="file">)"},
      {printed([] { gen_textarea("a\r\nb</textarea>", 0, nullptr); }),
       "<textarea>a\r\nb&lt;/textarea&gt;</textarea>"},
      {printed([] { gen_textarea(nullptr, PF_DISABLED, " name=\"%s\"", "<n>"); }),
       R"(<textarea name="<n>" disabled></textarea>)"}};
  for (const auto& c : cases) EXPECT_EQ(c.output, c.expected);
}

}  // namespace
