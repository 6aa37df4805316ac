#include <gtest/gtest.h>
#include <sys/mman.h>

#include "support/page_process.h"
#include "support/scripted_io.h"
#include "tavik.h"

namespace {

class XmlData : public testing::Test {
 protected:
  ~XmlData() override { free(doc_.buffer); }

  std::string text() const { return {doc_.buffer, doc_.length}; }
  // What a parser finds in the document. It adds a LF.
  std::string parsed(const std::string& path) const {
    const std::vector<std::string> arguments{"--xpath", "string(" + path + ")", "-"};
    return test::run_page("/usr/bin/xmllint", {{}, text(), 4096, arguments}).output;
  }

  xml_data doc_{};
};

TEST_F(XmlData, GrowsInStepsToTheSmallestThatFits) {
  const struct {
    int32_t add;
    uint32_t length, capacity;
  } steps[] = {{0, 0, 1024},    {-1, 0, 1024},    {1024, 1024, 1024},
               {1, 1025, 2048}, {-9, 1025, 2048}, {6143, 7168, 7168}};
  for (const auto& step : steps) {
    xml_data_append(&doc_, nullptr, step.add);
    EXPECT_EQ(text(), std::string(step.length, '\0'));
    EXPECT_EQ(doc_.capacity, step.capacity) << step.length;
  }
  // A document that would pass 4 GiB fails as if memory had run out.
  doc_.length = UINT32_MAX - 1;
  xml_data_str(&doc_, "ab");
  EXPECT_EQ(doc_.length, UINT32_MAX - 1);
  EXPECT_EQ(doc_.capacity, 0U);
}

TEST_F(XmlData, WritesTagsByForm) {
  const struct {
    int32_t form;
    std::string named, unnamed;
  } cases[] = {{0, "<n>", ">"},       {1, "<n>\n", ">\n"}, {2, "<n", ""}, {3, "</n>\n", ">\n"},
               {4, "<n/>\n", "/>\n"}, {5, "<n", ""},       {-1, "<n", ""}};
  for (const auto& c : cases) {
    doc_.length = 0;
    xml_data_tag(&doc_, "n", c.form);
    xml_data_tag(&doc_, nullptr, c.form);
    EXPECT_EQ(text(), c.named + c.unnamed) << c.form;
  }
}

TEST_F(XmlData, IsReadBackByAParser) {
  const std::string odd = "<a href='x'>\"R&D\"</a>\t\r\n\xC3\xA9\xE2\x82\xAC ]]>";
  xml_data_header(&doc_);
  xml_data_tag(&doc_, "root", XML_TAG_START);
  xml_data_attr_num(&doc_, "number", UINT32_MAX);
  xml_data_attr_str(&doc_, "word", "a&lt;b");
  xml_data_tag(&doc_, nullptr, XML_TAG_OPEN_NL);
  xml_data_element(&doc_, "odd", odd.c_str());
  xml_data_tag(&doc_, "root", XML_TAG_CLOSE);
  EXPECT_EQ(text(),
            "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
            "<root number=\"4294967295\" word=\"a&lt;b\">\n"
            "<odd>&lt;a href=&apos;x&apos;&gt;&quot;R&amp;D&quot;&lt;/a&gt;&#9;&#13;&#10;"
            "\xC3\xA9\xE2\x82\xAC ]]&gt;</odd>\n</root>\n");
  EXPECT_EQ(parsed("/root/odd"), odd + "\n");
  EXPECT_EQ(parsed("concat(/root/@number, /root/@word)"), "4294967295a<b\n");
}

TEST_F(XmlData, TakesAFileWithoutItsLastLineFeed) {
  const std::string piece(4096, 'p');
  const struct {
    std::string file, text;
    int32_t result, error;
  } cases[] = {
      {"", "", 0, 0},
      {"\n", "", 0, 0},
      {"a\x01\xFF<\n", "a\x01\xFF&lt;", 4, 0},
      {"a\n\n", "a&#10;", 2, 0},
      {"a&#10;", "a&amp;#10;", 6, 0},
      {piece + "\n", piece, 4096, 0},
      {piece.substr(1) + "\nlost", piece.substr(1), -1, EIO},
      {std::string("a\n\0", 3), "a", 2, 0},
      {std::string("a\0", 2) + piece + "z", "appz", 4099, 0},
  };
  for (const auto& c : cases) {
    const int fd = memfd_create("file", 0);
    ASSERT_EQ(pwrite(fd, c.file.data(), c.file.size(), 0), static_cast<ssize_t>(c.file.size()));
    const test::ScriptedIo io(fd, {{0, 4096}, {c.error, 4096}});
    doc_.length = 0;
    EXPECT_EQ(xml_data_txt_fd(&doc_, fd), c.result);
    EXPECT_EQ(text(), c.text);
  }
  doc_.length = 0;
  xml_data_txt(&doc_, "<\nb", 2);
  EXPECT_EQ(xml_data_txt_fd(&doc_, memfd_create("empty", 0)), 0);
  EXPECT_EQ(text(), "&lt;&#10;") << "the line feed is not the file's";
}

}  // namespace
