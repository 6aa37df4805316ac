#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

#include "support/scripted_io.h"
#include "support/temp_dir.h"
#include "tavik.h"

namespace {

using test::TempDir;

const std::string kNul(1, '\0');

TEST(ReadItem, TakesTheFirstBytesUpToAControlCharacter) {
  const struct {
    std::string file;
    int32_t count, result;
    std::string value;
  } cases[] = {
      {"abc\n", 10, 3, "abc"},
      {"abc\r\n", 10, 3, "abc"},
      {"abc", 10, 3, "abc"},
      {"abc\nsecond\n", 20, 3, "abc"},
      {"abc", 3, 3, "abc"},
      {"abc\n", 2, 2, "ab"},
      {"abc\n", 0, 0, ""},
      {"abc\n", -3, 0, ""},
      {"ab\tcd", 10, 2, "ab"},
      {std::string("ab\x7F") + "cd", 10, 2, "ab"},
      {std::string("ab\x1F") + "cd", 10, 2, "ab"},
      {"ab" + kNul + "cd", 10, 2, "ab"},
      {"\nabc", 10, 0, ""},
      {"", 10, 0, ""},
      {"  a b  \n", 10, 7, "  a b  "},
      {"ab\xC3\xA9\n", 3, 3, "ab\xC3"},
      {"\x80\xFF\n", 10, 2, "\x80\xFF"},
  };
  const TempDir dir;
  for (const auto& c : cases) {
    dir.put("item", c.file);
    char buffer[32];
    memset(buffer, '#', sizeof buffer);
    EXPECT_EQ(read_item(dir.c_str(), "item", buffer, c.count), c.result) << c.file;
    EXPECT_EQ(std::string(buffer), c.value);
    const auto count = static_cast<size_t>(std::max(c.count, 0));
    EXPECT_EQ(buffer[std::min(count, c.file.size())], '\0') << "behind all that was read";
    EXPECT_EQ(buffer[count + 1], '#') << "only count + 1 bytes are the function's";
  }
}

TEST(ReadItem, FailureLeavesTheEmptyText) {
  const TempDir dir;
  const struct {
    const char *directory, *name;
  } cases[] = {{dir.c_str(), "missing"}, {nullptr, "item"}, {dir.c_str(), ""}};
  for (const auto& c : cases) {
    char buffer[8] = "before";
    EXPECT_EQ(read_item(c.directory, c.name, buffer, 7), -1);
    EXPECT_STREQ(buffer, "");
  }
  EXPECT_EQ(read_item(dir.c_str(), "missing", nullptr, 7), -1);
}

TEST(ReadItem, DescriptorFormPassesFailuresOn) {
  char buffer[8] = "before";
  EXPECT_EQ(read_item_fd(-7, buffer, 7), -7);
  EXPECT_STREQ(buffer, "before");
  int ends[2];
  ASSERT_EQ(pipe(ends), 0);
  ASSERT_EQ(write(ends[1], "ab", 2), 2);
  const test::ScriptedIo io(ends[0], {{0, 2}, {EIO}});
  EXPECT_EQ(read_item_fd(ends[0], buffer, 7), -1);
  EXPECT_STREQ(buffer, "abfore") << "what arrived stays, without a terminator";
  close(ends[0]);
  close(ends[1]);
}

TEST(ReadItem, AllocTakesAnyLength) {
  const TempDir dir;
  const auto page = static_cast<size_t>(getpagesize());
  for (const size_t length : {size_t{0}, size_t{5}, page - 1, page, page + 1, 5 * page}) {
    const std::string value(length, 'v');
    dir.put("item", value + "\n");
    char* result = nullptr;
    EXPECT_EQ(read_item_alloc(dir.c_str(), "item", &result), static_cast<int32_t>(length));
    EXPECT_EQ(std::string(result), value);
    free(result);
  }
  dir.put("item", "short\n");
  const int fd = open(dir.path("item").c_str(), O_RDONLY);
  char* result = nullptr;
  EXPECT_EQ(read_item_alloc_fd(fd, &result, 2), 5) << "the file's size where that is larger";
  EXPECT_STREQ(result, "short");
  free(result);
  close(fd);
}

TEST(ReadItem, AllocReadsFilesWhoseSizeReadsAsZero) {
  char* result = nullptr;
  EXPECT_GT(read_item_alloc("/proc/sys/kernel", "ostype", &result), 0);
  EXPECT_STREQ(result, "Linux");
  free(result);
  const int fd = open("/proc/sys/kernel/ostype", O_RDONLY);
  EXPECT_EQ(read_item_alloc_fd(fd, &result, 2), 2);
  EXPECT_STREQ(result, "Li") << "the least";
  free(result);
  close(fd);
}

TEST(ReadItem, AllocFailures) {
  const TempDir dir;
  char preset[] = "";
  char* result = preset;
  EXPECT_EQ(read_item_alloc_fd(-9, &result, 5), -9);
  EXPECT_EQ(read_item_alloc(dir.c_str(), "missing", &result), -1);
  EXPECT_EQ(read_item_alloc_fd(9999, &result, 5), -1);
  EXPECT_EQ(read_item_alloc(dir.c_str(), "", nullptr), -1);
  EXPECT_EQ(result, preset);
  result = nullptr;
  EXPECT_EQ(read_item_alloc(dir.c_str(), "", &result), -1) << "a directory";
  EXPECT_NE(result, nullptr) << "a failed read hands out the buffer";
  free(result);
}

std::string words;

int32_t note_word(uintptr_t context, char* word) {
  words += std::to_string(context) + ":" + word + "|";
  word[0] = '!';
  return -1;
}

TEST(ReadItemsStr, CallsBackForEachWord) {
  const struct {
    std::string file;
    int32_t result;
    std::string expected;
  } cases[] = {
      {"  one  two  \n", 12, "5:one|5:two|"},
      {"one", 3, "5:one|"},
      {"", 0, ""},
      {"    \n", 4, ""},
      {"a\tb c\n", 1, "5:a|"},
  };
  const TempDir dir;
  for (const auto& c : cases) {
    dir.put("item", c.file);
    words = "";
    EXPECT_EQ(read_items_str(note_word, 5, dir.c_str(), "item"), c.result);
    EXPECT_EQ(words, c.expected);
  }
  words = "";
  EXPECT_EQ(read_items_str(nullptr, 5, dir.c_str(), "item"), -1);
  EXPECT_EQ(read_items_str(note_word, 5, dir.c_str(), "missing"), -1);
  EXPECT_EQ(read_items_str(note_word, 5, dir.c_str(), ""), -1);
  EXPECT_EQ(words, "");
}

}  // namespace
