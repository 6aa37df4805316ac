#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstring>

#include "support/input_file.h"
#include "support/rows.h"
#include "support/scripted_io.h"
#include "support/temp_dir.h"
#include "tavik.h"

namespace {

using std::string;

struct Items : testing::Test {
  test::TempDir dir;
  const char* const in = dir.c_str();
};

template <typename... Results>
void expect_failed(int32_t expected, Results... results) {
  EXPECT_THAT((std::array{results...}), testing::Each(expected));
}

TEST_F(Items, AddressIsJoinedWithOneSlashAtTheSeam) {
  static string joined;
  const auto note_path = [](const char* path, int32_t first, uint32_t second) {
    joined = path;
    return first + static_cast<int32_t>(second);
  };
  const std::array<const char*, 3> cases[] = {
      {"a/b", "c", "a/b/c"},  {"a/b/", "c", "a/b/c"}, {"a/b/", "/c", "a/b/c"},
      {"a/b", "/c", "a/b/c"}, {"a//", "/b", "a//b"},  {"a", "//b", "a//b"},
      {"", "c", "c"},         {"", "/c", "/c"},       {"", "", ""},
      {"a/b", "", "a/b/"},    {"a/b/", "", "a/b/"},   {"/", "c", "/c"},
      {"/", "/c", "/c"},      {"/", "", "/"}};
  for (const auto& [directory, name, path] : cases) {
    EXPECT_EQ(_func_path_name(note_path, directory, name, -40, 82), 42);
    EXPECT_EQ(joined, path);
  }
  joined = "untouched";
  errno = 123;
  expect_failed(-1, _func_path_name(nullptr, "a", "b", 1, 1),
                _func_path_name(note_path, nullptr, "b", 1, 1),
                _func_path_name(note_path, "a", nullptr, 1, 1));
  EXPECT_EQ(joined, "untouched");
  EXPECT_EQ(errno, 123);
}

TEST_F(Items, AddressIsOpenedLookedUpAndRemoved) {
  const mode_t saved = umask(027);
  close(open_path_name(in, "opened", O_WRONLY | O_CREAT | O_EXCL, 0765));
  create_item(in, "made", "", 0);
  umask(saved);
  EXPECT_EQ(symlink("nowhere", dir.path("dangling").c_str()), 0);
  const std::tuple<const char*, int32_t, mode_t> cases[] = {
      {"opened", 0, 0740}, {"made", 0, 0640}, {"dangling", -1, 0}};
  for (const auto& [name, found, mode] : cases) {
    struct stat status {};
    EXPECT_EQ(stat(dir.path(name).c_str(), &status), found);
    EXPECT_EQ(status.st_mode & 07777, mode);
    EXPECT_EQ(stat_item(in, name), found);
    EXPECT_EQ(remove_item(in, name), 0);
    EXPECT_EQ(stat_item(in, name), -1);
    EXPECT_EQ(remove_item(in, name), -1);
    EXPECT_EQ(errno, ENOENT);
  }
}

// Ahead of its first control character.
string value_in(const string& bytes) {
  const auto is_control = [](unsigned char byte) { return byte < 0x20 || byte == 0x7F; };
  return {bytes.begin(), std::find_if(bytes.begin(), bytes.end(), is_control)};
}

const string kFiles[] = {"",           "\n",      "abc",
                         "abc\n",      "abd\n",   "abcd\n",
                         "ab\r\nmore", "a\tb\n",  "\x80\xFF\xC3\xA4",
                         "ab\177c",    "ab\037c", string("ab\0c", 4)};

TEST_F(Items, AreRewrittenOnlyIfTheyDiffer) {
  for (const string& file : kFiles) {
    for (const string& fresh : kFiles) {
      for (const int32_t size : {-1, 0, 2, 3, 4, 0x7FFFFFFF}) {
        const auto most = static_cast<size_t>(std::max(size, 0));
        const string value = string(fresh.c_str()).substr(0, most);
        const bool same = value_in(file.substr(0, most)) == value;
        SCOPED_TRACE(testing::PrintToString(std::tuple(file, fresh, size)));
        const test::InputFile item(file);
        const string name = std::to_string(item.fd());
        const auto call = [&](auto* function) {
          return function("/proc/self/fd", name.c_str(), fresh.c_str(), size);
        };
        EXPECT_EQ(call(compare_item), !same);
        EXPECT_EQ(item.bytes(), file);
        EXPECT_EQ(call(update_item), same ? 0 : value.size() + 1);
        EXPECT_EQ(item.bytes(), same ? file : value + "\n");
        EXPECT_EQ(call(create_item), value.size() + 1);
        EXPECT_EQ(item.bytes(), value + "\n");
      }
    }
  }
}

TEST_F(Items, AreStoredInOtherForms) {
  const auto stored = [&](int32_t result) {
    return std::to_string(result) + (dir.touched("n") ? " " : " untouched ") + *dir.get("n");
  };
  EXPECT_EQ(stored(create_item_uint(in, "n", UINT32_MAX)), "11 4294967295\n");
  EXPECT_EQ(stored(update_item_uint(in, "n", 12)), "3 12\n");
  dir.age("n");
  EXPECT_EQ(stored(update_item_uint(in, "n", 12)), "0 untouched 12\n");
  EXPECT_EQ(stored(write_item_uint(in, "n", 12)), "3 12\n");
  EXPECT_EQ(stored(write_item_uint(in, "n", UINT32_MAX)), "11 4294967295\n");
  EXPECT_EQ(stored(write_item_text(in, "n", "some text")), "10 some text\n");
  EXPECT_EQ(stored(write_item_text(in, "n", nullptr)), "1 \n");
  EXPECT_EQ(stored(create_concat_item(in, "n", "abc", "def")), "7 abcdef\n");
  EXPECT_EQ(stored(create_concat_item(in, "n", "", "")), "1 \n");
}

TEST_F(Items, HoldNumbers) {
  // Read without a sign, by a format, with a sign, and as a result.
  const auto read = [&](const char* text) {
    dir.put("n", text);
    uint32_t number = 77, formatted = 77;
    int32_t with_sign = 77;
    const int32_t lengths[] = {
        read_item_uint(in, "n", &number), read_item_uint_fmt(&formatted, "%s/%c", in, 'n'),
        read_item_sint(in, "n", &with_sign), read_item_sint(in, "n", nullptr)};
    EXPECT_THAT(lengths, testing::Each(std::min<size_t>(strlen(text), 15)));
    return test::joined(number, formatted, with_sign, read_item_uint(in, "n", nullptr));
  };
  test::expect_rows(
      "12abc=12 12 12 12|-5=0 0 -5 0| 5=0 0 0 0|=77 77 77 0|4294967299=3 3 3 3|"
      "2147483647=2147483647 2147483647 2147483647 2147483647|"
      "2147483648=2147483648 2147483648 -2147483648 2147483647|"
      "10000000000000012345=276447232 276447232 276447232 276447232",
      read);
  const auto doubled = [](uint32_t value) { return static_cast<int32_t>(value * 2); };
  EXPECT_EQ(call_uint(in, "n", doubled), 552894464);
  EXPECT_EQ(call_uint(in, "n", nullptr), -2);
  dir.put("n", "");
  EXPECT_EQ(call_uint(in, "n", doubled), -2) << "UINT32_MAX doubled";
  test::expect_rows("TRUE=1|true=1|False=0|2=1|0=0|yes=0|=0|true =0|4294967296=0", bool_to_uint);
  EXPECT_EQ(test::joined(str_to_uint(nullptr), str_to_sint(nullptr), bool_to_uint(nullptr)),
            "0 0 0");
}

TEST_F(Items, FailAtTheirAddress) {
  char before[] = "before";
  char* heap = before;
  uint32_t number = 77;
  int32_t signed_number = 77;
  const auto callback = [](uintptr_t, char*) { return 0; };
  const auto func = [](uint32_t) { return 0; };
  const std::pair<const char*, const char*> addresses[] = {
      {nullptr, "n"}, {in, nullptr}, {in, "no/folder"}, {in, ""}};
  for (const auto& [folder, name] : addresses) {
    SCOPED_TRACE(name);
    char buffer[] = "before";
    expect_failed(-1, read_item(folder, name, buffer, 7), read_item(folder, name, nullptr, 7),
                  read_item_alloc(folder, name, nullptr), read_items_str(callback, 5, folder, name),
                  read_item_uint(folder, name, &number),
                  read_item_sint(folder, name, &signed_number), call_uint(folder, name, func),
                  create_item(folder, name, "v", 1), create_item_uint(folder, name, 1),
                  create_concat_item(folder, name, "a", "b"), update_item(folder, name, "v", 1),
                  update_item_uint(folder, name, 1), compare_item(folder, name, "v", 1),
                  write_item_uint(folder, name, 1), write_item_text(folder, name, nullptr),
                  open_path_name(folder, name, O_WRONLY, 0), remove_item(folder, name));
    EXPECT_STREQ(buffer, "");
  }
  dir.put("wide", "");
  std::filesystem::resize_file(dir.path("wide"), 0x80000000);
  expect_failed(-1, full_read_fd(0, nullptr, 1), full_write_fd(1, nullptr, 1),
                read_item_alloc(in, "wide", &heap), update_item(in, "wide", nullptr, 1),
                read_item_alloc(in, "none", &heap), read_item_alloc_fd(9999, &heap, 5),
                read_items_str(nullptr, 5, in, ""), read_item_uint_fmt(&number, "%s", ""),
                read_item_uint_fmt(&number, "%s/none", in), create_item(in, "none", nullptr, 1),
                create_concat_item(in, "none", nullptr, "b"),
                create_concat_item(in, "none", "a", nullptr), update_item(in, "none", "v", 1),
                write_item_uint(in, "none", 1), write_item_text(in, "none", nullptr),
                stat_item(in, "none"), stat_item(nullptr, nullptr));
  expect_failed(-7, read_item_fd(-7, before, 7), read_item_uint_fd(-7, &number),
                read_item_sint_fd(-7, &signed_number), read_item_alloc_fd(-7, &heap, 5));
  EXPECT_EQ(std::tuple(number, signed_number, heap), std::tuple(77U, 77, before));
  EXPECT_EQ(read_item_alloc(in, "", &heap), -1);
  EXPECT_NE(heap, before) << "a failed read hands out the buffer";
  free(heap);
  const test::InputFile file("ab");
  const test::ScriptedIo io(file.fd(), {{0, 2}, {EIO}});
  EXPECT_EQ(read_item_fd(file.fd(), before, 7), -1);
  EXPECT_STREQ(before, "abfore") << "what arrived stays, without a terminator";
}

TEST_F(Items, AreReadIntoTheHeapWhole) {
  dir.put("short", "short");
  const std::tuple<const char*, const char*, int32_t, string> cases[] = {
      {in, "short", 2, "short"},
      {"/proc/sys/kernel", "ostype", 2, "Li"},  // a file whose size reads as 0
      {"/proc/sys/kernel", "ostype", -1, "Linux"}};
  for (const auto& [folder, name, least, value] : cases) {
    const int fd = open_path_name(folder, name, O_RDONLY, 0);
    char* heap = nullptr;
    EXPECT_EQ(read_item_alloc_fd(fd, &heap, least), value.size());
    EXPECT_EQ(heap, value);
    free(heap);
    close(fd);
  }
  static string words;
  const auto note_word = [](uintptr_t context, char* word) {
    words += std::to_string(context) + ":" + word + "|";
    word[0] = '!';
    return -1;
  };
  dir.put("list", "  one  two ");
  EXPECT_EQ(read_items_str(note_word, 5, in, "list"), 11);
  EXPECT_EQ(words, "5:one|5:two|");
}

}  // namespace
