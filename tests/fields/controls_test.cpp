#include <arpa/inet.h>
#include <gtest/gtest.h>

#include <cstring>

#include "support/capture.h"
#include "support/html.h"
#include "tavik.h"

namespace {

using test::html;
using test::printed;

TEST(Control, PrintsNumbers) {
  const uint32_t off = PF_READONLY | PF_DISABLED, five = 5, same = 5, seven = 7;
  int32_t sum = 0;
  EXPECT_EQ(printed([&] {
              sum += gen_xcheckbox(PF_CHECKED, " name=%s", "<n>");
              sum += gen_numberbox("<n>", 5, 3, ~0U, off);
              sum += gen_numberbox(nullptr, 0, 0, 0, 0);
              sum += gen_xnumberbox(3, ~0U, off, " name=%s", "<n>");
              sum += gen_xnumberbox(3, 7, PF_SIZE, nullptr);
              sum += gen_xrangebox(9, &five, &seven, "<5", PF_DISABLED, " x=%s", "<");
            }),
            html("<input type='checkbox' name=<n> checked>"
                 "<input type='text' name='<n>' size='5' maxlength='3' value='4294967295'"
                 " disabled readonly><input type='text' size='0' maxlength='0' value='0'>"
                 "<input type='text' value='4294967295' name=<n> disabled readonly>"
                 "<input type='text' maxlength='3' value='7'>"
                 "<input type='text' maxlength='9' x=< disabled value='&lt;5'>"));
  EXPECT_EQ(sum, 6 * '>') << "the last byte of each";
  const std::tuple<const uint32_t*, const uint32_t*, const char*> ranges[] = {
      {&five, &seven, "5-7"},
      {&five, &same, "5"},
      {&five, nullptr, "5"},
      {nullptr, &seven, "-7"},
      {nullptr, nullptr, "-"}};
  for (const auto& [first, last, text] : ranges) {
    EXPECT_EQ(printed([&, first = first, last = last] {
                gen_xrangebox(9, first, last, nullptr, PF_READONLY, nullptr);
              }),
              html("<input type='text' readonly value='") + text + "\">");
  }
}

TEST(Control, PrintsAddresses) {
  const uint32_t ip = inet_addr("10.0.0.1");
  const ipv4_cidr net{ip, 8}, beyond{ip, 33};
  sockaddr mac = {};
  memcpy(mac.sa_data, "\x00\x11\x22\xAA\xBB\xCC", 6);
  EXPECT_EQ(printed([&] {
              gen_ipv4box("<n>", 0, &ip, 0), gen_ipv4box(nullptr, ~0U, &ip, PF_READONLY);
              gen_xipv4box(-1, &ip, PF_DISABLED, " x=%s", "<"), gen_xipv4box(0, &ip, 0, nullptr);
              gen_ipv4cidr("<n>", 0, &beyond, PF_READONLY), gen_ipv4cidr(nullptr, 7, &net, 0);
              gen_xipv4cidr(0, &beyond, PF_DISABLED, " x=%s", "<");
              gen_xmacbox(0, &mac, 0, " x=%s", "<"), gen_xmacbox(-1, &mac, 0, nullptr);
              gen_xmacbox(5, &mac, PF_READONLY, nullptr);
              gen_ipv4box("x", 0, nullptr, 0), gen_xipv4box(0, nullptr, 0, " x");
              gen_ipv4cidr("x", 0, nullptr, 0), gen_xipv4cidr(0, nullptr, 0, " x");
              gen_xmacbox(0, nullptr, 0, " x");
            }),
            html("<input type='text' name='<n>' size='15' maxlength='15' value='10.0.0.1'>"
                 "<input type='text' size='4294967295' maxlength='15' value='10.0.0.1' readonly>"
                 "<input type='text' maxlength='15' value='10.0.0.1' x=< disabled>"
                 "<input type='text' size='15' maxlength='15' value='10.0.0.1'>"
                 "<input type='text' name='<n>' size='18' maxlength='18' value='10.0.0.1/32'"
                 " readonly><input type='text' size='7' maxlength='18' value='10.0.0.1/8'>"
                 "<input type='text' size='18' maxlength='18' value='10.0.0.1/32' x=< disabled>"
                 "<input type='text' maxlength='18' size='18' value='00-11-22-AA-BB-CC' x=<>"
                 "<input type='text' maxlength='18' value='00-11-22-AA-BB-CC'>"
                 "<input type='text' size='5' value='00-11-22-AA-BB-CC' readonly>"));
}

TEST(Control, PrintsItsElement) {
  int32_t sum = 0;
  const auto icon = [](uint32_t flags) { return printf("<i>%x</i>", flags); };
  EXPECT_EQ(printed([&] {
              sum += gen_radio("<", ~0U, ~0U, nullptr, 0);
              sum += gen_radio(nullptr, 2, 3, " id=&%s", PF_CHECKED);
              sum += gen_radio_string("m", "a&", "a&", nullptr, 0);
              sum += gen_radio_string("m", "a", "A", " id", PF_DISABLED);
              sum += gen_radio_string(nullptr, "", nullptr, nullptr, PF_CHECKED);
              sum += gen_radio_string("m", nullptr, nullptr, nullptr, 0);
              sum += gen_upload(PF_DISABLED, " name=%s", "<");
              gen_xbutton("OK", nullptr, PF_SUBMIT, nullptr);
              gen_xbutton("a<b", icon, PF_DISABLED, " name=%s", "<n>");
              gen_xbutton(nullptr, nullptr, 0, nullptr);
              gen_image("/img/", "a.png", nullptr, nullptr);
              gen_image("", "a&b", "\"%s", " width=%d", 16);
              gen_image("/img/", nullptr, "a", " x"), gen_image(nullptr, "a", "a", " x");
              gen_textarea("a\r\nb</textarea>", 0, nullptr);
              gen_textarea(nullptr, PF_DISABLED, " name=%s", "<n>");
            }),
            html("<input type='radio' name='<' value='4294967295' checked>"
                 "<input type='radio' value='2' id=&%s checked>"
                 "<input type='radio' name='m' value='a&' checked>"
                 "<input type='radio' name='m' value='a' id disabled>"
                 "<input type='radio' value='' checked><input type='radio' name='m'>"
                 "<input type='file' name=< disabled>"
                 "<button type='submit'>OK</button>"
                 "<button type='button' name=<n> disabled><i>1</i>a&lt;b</button>"
                 "<button type='button'></button><img src='/img/a.png'>"
                 "<img src='a&b' alt='&quot;%s' width=16>"
                 "<textarea>a\r\nb&lt;/textarea&gt;</textarea>"
                 "<textarea name=<n> disabled></textarea>"));
  EXPECT_EQ(sum, 7 * '>') << "the last byte of each input";
}

}  // namespace
