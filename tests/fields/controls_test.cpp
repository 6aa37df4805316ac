#include <arpa/inet.h>
#include <gtest/gtest.h>

#include "support/page_file.h"
#include "tavik.h"

namespace {

// Ends a line of the page, behind a function that gives the last byte it printed.
void line(int32_t last = '>') {
  EXPECT_EQ(last, '>');
  putchar('\n');
}

int32_t icon(uint32_t flags) {
  return printf("<i>%x</i>", flags);
}

void numbers() {
  const uint32_t five = 5, same = 5, seven = 7, *const none = nullptr;
  line(gen_xcheckbox(PF_CHECKED, " name=%s", "<n>"));
  line(gen_radio("<", ~0U, ~0U, nullptr, 0));
  line(gen_radio(nullptr, 2, 3, " id=&%s", PF_CHECKED));
  line(gen_numberbox("<n>", 5, 3, ~0U, PF_READONLY));
  line(gen_xnumberbox(3, ~0U, PF_DISABLED, " name=%s", "<n>"));
  line(gen_xrangebox(9, &five, &seven, "<5", PF_DISABLED, " x=%s", "<"));
  for (const uint32_t* first : {&five, none}) {
    for (const uint32_t* last : {&seven, &same, none}) {
      line(gen_xrangebox(9, first, last, nullptr, PF_READONLY, nullptr));
    }
  }
}

void addresses() {
  const uint32_t ip = inet_addr("10.0.0.1");
  const ipv4_cidr net{ip, 8}, beyond{ip, 33};
  const sockaddr mac = {1, "\x00\x11\x22\xAA\xBB\xCC"};
  gen_ipv4box("<n>", 0, &ip, 0), gen_ipv4box("x", 0, nullptr, 0), line();
  gen_ipv4box(nullptr, ~0U, &ip, PF_READONLY), line();
  gen_xipv4box(-1, &ip, PF_DISABLED, " x=%s", "<"), gen_xipv4box(0, nullptr, 0, " x"), line();
  gen_xipv4box(0, &ip, 0, nullptr), line();
  gen_ipv4cidr("<n>", 0, &beyond, PF_READONLY), gen_ipv4cidr("x", 0, nullptr, 0), line();
  gen_xipv4cidr(7, &net, 0, nullptr), line();
  gen_xipv4cidr(0, &beyond, PF_DISABLED, " x=%s", "<"), gen_xipv4cidr(0, nullptr, 0, " x"), line();
  gen_xmacbox(0, &mac, PF_DISABLED, " x=%s", "<"), gen_xmacbox(0, nullptr, 0, " x"), line();
  gen_xmacbox(-1, &mac, 0, nullptr), line();
  gen_xmacbox(5, &mac, PF_READONLY, nullptr), line();
}

void texts() {
  const char* const none = nullptr;
  line(gen_radio_string("m", "a&", "a&", nullptr, 0));
  line(gen_radio_string("m", "a", "A", " id", PF_DISABLED));
  line(gen_radio_string(nullptr, "", nullptr, nullptr, PF_CHECKED));
  line(gen_radio_string("m", nullptr, "", nullptr, 0));
  for (const char* value : {"<\u20AC\u00E9", "a\377z", "", none}) {
    for (const int32_t maximum : {-1, 0, 2, 9}) {
      line(gen_xtextbox(maximum, value, PF_SIZE, " name=\"%s%c\"", "<", 'h'));
      line(gen_xtextbox(maximum, value, PF_PASSWORD | PF_DATA_VALUE, nullptr));
      line(gen_xtextbox(maximum, value, PF_MASKED | PF_READONLY | PF_SIZE, nullptr));
      line(gen_xtextbox(maximum, value, PF_MASKED | PF_DISABLED | PF_DATA_VALUE, nullptr));
    }
  }
  gen_textarea("a\nb</textarea>", 0, nullptr), line();
  gen_textarea(nullptr, PF_DISABLED, " name=%s", "<n>"), line();
}

void others() {
  line(gen_upload(PF_DISABLED, " name=%s", "<"));
  gen_xbutton("OK", nullptr, PF_SUBMIT, nullptr), line();
  gen_xbutton("a<b", icon, PF_DISABLED, " name=%s", "<n>"), line();
  gen_image("/img/", "a&b", nullptr, nullptr), line();
  gen_image("", "a&b", "\"%s", " width=%d", 16), line();
  gen_image("/img/", nullptr, "a", " x"), gen_image(nullptr, "a", "a", " x"), line();
}

TEST(Controls, PrintAPage) {
  test::expect_page("fields/controls.html", [] {
    numbers();
    addresses();
    texts();
    others();
  });
}

TEST(Controls, PrintJsonMembers) {
  uint32_t flags = 0;
  EXPECT_EQ(test::printed([&] {
              EXPECT_EQ(gen_json_text("x", nullptr, PF_RAW), PF_RAW);
              flags = gen_json_text("", "b", gen_json_text("<\"", "a", PF_RAW));
              EXPECT_EQ(flags, PF_RAW | PF_JSON_MORE);
              flags = gen_json_text("x", "d", gen_json_text(nullptr, "c", flags));
            }),
            "\"a\": \"<\"\", \"b\": \"\", \"c\": null, \"d\": null");
  EXPECT_EQ(flags, PF_RAW | PF_JSON_MORE | PF_DISABLED);
}

}  // namespace
