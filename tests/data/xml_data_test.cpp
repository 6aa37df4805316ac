#include <gtest/gtest.h>

#include "support/input_file.h"
#include "support/page_process.h"
#include "support/rows.h"
#include "support/scripted_io.h"
#include "tavik.h"

namespace {

using std::string;

class XmlData : public testing::Test {
 protected:
  ~XmlData() override { free(doc_.buffer); }

  // All that was appended since the last time.
  string text() { return {doc_.buffer, std::exchange(doc_.length, 0)}; }

  xml_data doc_{};
};

TEST_F(XmlData, GrowsInStepsToTheSmallestThatFits) {
  test::expect_rows("0=0 1024|-1=0 1024|1024=1024 1024|1=1025 2048|-9=1025 2048|6143=7168 7168",
                    [&](const char* added) {
                      xml_data_append(&doc_, nullptr, atoi(added));
                      EXPECT_EQ(string(doc_.buffer, doc_.length), string(doc_.length, '\0'));
                      return test::joined(doc_.length, doc_.capacity);
                    });
  // A document that would pass 4 GiB fails as if memory had run out.
  doc_.length = UINT32_MAX - 1;
  xml_data_str(&doc_, "ab");
  EXPECT_EQ(doc_.length, UINT32_MAX - 1);
  EXPECT_EQ(doc_.capacity, 0U);
}

TEST_F(XmlData, WritesTagsByForm) {
  test::expect_rows("-1=<n |0=<n> >|1=<n>\n >\n|2=<n |3=</n>\n >\n|4=<n/>\n />\n|5=<n ",
                    [&](const char* form) {
                      xml_data_tag(&doc_, "n", atoi(form));
                      xml_data_str(&doc_, " ");
                      xml_data_tag(&doc_, nullptr, atoi(form));
                      return text();
                    });
}

TEST_F(XmlData, IsReadBackByAParser) {
  const string odd = "<a href='x'>\"R&D\"</a>\t\r\n\xC3\xA9\xE2\x82\xAC ]]>";
  xml_data_header(&doc_);
  xml_data_tag(&doc_, "root", XML_TAG_START);
  xml_data_attr_num(&doc_, "number", UINT32_MAX);
  xml_data_attr_str(&doc_, "word", "a&lt;b");
  xml_data_tag(&doc_, nullptr, XML_TAG_OPEN_NL);
  xml_data_element(&doc_, "odd", odd.c_str());
  xml_data_tag(&doc_, "root", XML_TAG_CLOSE);
  const string document = text();
  EXPECT_EQ(document,
            "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
            "<root number=\"4294967295\" word=\"a&lt;b\">\n"
            "<odd>&lt;a href=&apos;x&apos;&gt;&quot;R&amp;D&quot;&lt;/a&gt;&#9;&#13;&#10;"
            "\xC3\xA9\xE2\x82\xAC ]]&gt;</odd>\n</root>\n");
  const string path = "concat(/root/odd, /root/@number, /root/@word)";
  const test::PageRequest parser{{}, document, 4096, {"--xpath", path, "-"}};
  EXPECT_EQ(test::run_page("/usr/bin/xmllint", parser).output, odd + "4294967295a<b\n");
}

TEST_F(XmlData, TakesAFileWithoutItsLastLineFeed) {
  const string piece(4096, 'p');
  const std::tuple<string, string, int32_t, int> cases[] = {
      {"", "", 0, 0},
      {"\n", "", 0, 0},
      {"a\x01\xFF<\n", "a\x01\xFF&lt;", 4, 0},
      {"a\n\n", "a&#10;", 2, 0},
      {"a&#10;", "a&amp;#10;", 6, 0},
      {piece + "\n", piece, 4096, 0},
      {piece.substr(1) + "\nlost", piece.substr(1), -1, EIO},
      {string("a\n\0", 3), "a", 2, 0},
      {string("a\0", 2) + piece + "z", "appz", 4099, 0},
  };
  for (const auto& [bytes, appended, result, error] : cases) {
    const test::InputFile file(bytes);
    const int fd = dup(file.fd());
    const test::ScriptedIo io(fd, {{0, 4096}, {error, 4096}});
    EXPECT_EQ(xml_data_txt_fd(&doc_, fd), result);
    EXPECT_EQ(text(), appended);
  }
  xml_data_txt(&doc_, "<\nb", 2);
  EXPECT_EQ(xml_data_txt_fd(&doc_, dup(test::InputFile().fd())), 0);
  EXPECT_EQ(text(), "&lt;&#10;") << "the line feed is not the file's";
}

}  // namespace
