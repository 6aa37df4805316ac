#include <dlfcn.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include "support/page_process.h"
#include "support/rows.h"
#include "support/temp_dir.h"
#include "tavik.h"

namespace {
char** crypt_answer = nullptr;  // what crypt() answers, or null for the real one
}

extern "C" char* crypt(const char* key, const char* setting) {
  if (crypt_answer != nullptr) return *crypt_answer;
  return reinterpret_cast<decltype(&crypt)>(dlsym(RTLD_NEXT, "crypt"))(key, setting);
}

namespace {

using test::expect_rows;
using test::joined;

constexpr char kLetmein[] = "$1$./abYZ09$WqceMIY3sd9e1sAo/R9kN0";

std::string run(const std::string& program, std::vector<std::string> arguments) {
  return test::run_page(program, {{{"REQUEST_METHOD", "GET"}}, "", 1, std::move(arguments)}).output;
}

std::string encode(int32_t scheme, const char* password, uint32_t seed) {
  char* const text = crypt_encode(scheme, password, seed);
  const std::string copy = text;
  free(text);
  return copy;
}

// Another implementation's hash, with the salt of the one given, and a LF.
std::string hash_by_openssl(const std::string& password, const std::string& hash) {
  return run("/usr/bin/openssl", {"passwd", "-1", "-salt", hash.substr(3, 8), password});
}

TEST(Passwords, AuthorisationByRemoteUser) {
  const auth_pair table[] = {{"Admin", 1}, {"admin", 0x80000002}, {"admin", 3}, {"", 4}, {}};
  unsetenv("REMOTE_USER");
  EXPECT_EQ(get_auth(table), 0U);
  expect_rows("admin=2147483650|Admin=1|=4|adm=0|admin =0", [&](const char* user) {
    setenv("REMOTE_USER", user, 1);
    EXPECT_EQ(get_auth(nullptr), 0U);
    return get_auth(table);
  });
}

TEST(Passwords, AreHashedAsOthersDo) {
  for (const char* const password : {"", "letmein", "S#+,-./:;@ \xC3\xA4", "0123456789abcdefg"}) {
    const std::string hash = encode(0x31, password, 1);
    EXPECT_EQ(hash + "\n", hash_by_openssl(password, hash));
    EXPECT_EQ(crypt_cmp(0x31, hash.c_str(), password), 0);
    EXPECT_NE(crypt_cmp(0x31, hash.c_str(), "other"), 0);
    EXPECT_NE(crypt_cmp(0, hash.c_str(), password), 0);
    EXPECT_EQ(crypt_cmp(0, password, encode(0, password, 1).c_str()), 0);
  }
  for (const auto& [start, scheme] :
       {std::pair<std::string, int32_t>{"$1$", 0x31}, {"$5$", 0}, {"$1x", 0}, {"x1$", 0}}) {
    const std::string text = start + std::string(32, '$');
    EXPECT_EQ(crypt_detect(text.c_str(), 34), scheme) << text;
    for (const int32_t length : {35, 33, 3, -34}) EXPECT_EQ(crypt_detect(text.c_str(), length), 0);
  }
  EXPECT_EQ(crypt_detect("$1$", 34), 0);
  EXPECT_TRUE(crypt_cmp(0, nullptr, "a") != 0 && crypt_cmp(0, "a", nullptr) != 0);
}

TEST(Passwords, SaltComesFromSeedProcessAndTime) {
  time_t now = 0;
  std::string hash;
  do {  // until the clock did not tick in between
    now = time(nullptr);
    hash = encode(0x31, "", 0U - static_cast<uint32_t>(getpid()) - static_cast<uint32_t>(now));
  } while (time(nullptr) != now);
  EXPECT_EQ(hash.substr(0, 12), "$1$ilERA5tf$");
}

// The two ways of linking a page. Only its dynamic section, or its loader, can name a library.
TEST(Passwords, PageWithAndWithoutLibcrypt) {
  const std::string hash = test::page_program("hash"), echo = test::page_program("echo_nocrypt");
  const std::string found = run("/usr/bin/grep", {"-l", "libcrypt[.]so\\|uClibc", hash});
  EXPECT_EQ(found, hash + "\n") << "uClibc has crypt() itself";
  EXPECT_EQ(run("/usr/bin/grep", {"-l", "libcrypt[.]so", echo}), "");
  EXPECT_EQ(run(hash, {"secret", "secret"}) + run(hash, {"secret", "Secret"}),
            "34 match\n34 differ\n");
  EXPECT_EQ(run(echo, {}), "result 0\n");
}

TEST(Passwords, ChecksNewEntries) {
  expect_rows(
      "=0|abc=6|azAZ=3|09#+,-./=3|:;@abcdef=6|:;@abcdef!=7|abcd\xC3\xA4=7|abcd\xE4\x80\xA3=7|"
      "\xFFpass=0|pass\xFFword!=3|pas\xFFword=6",
      [](const char* text) {
        const char* accepted = nullptr;
        const int32_t status = chk_new_passwd(text, &accepted, 4, 8);
        EXPECT_EQ(accepted, status == PW_STATUS_ACCEPTED ? text : nullptr) << text;
        return status;
      });
  for (char text[] = {1, 0}; text[0] != 127; ++text[0]) {
    const bool allowed = isalnum(text[0]) != 0 || strchr("#+,-./:;@", text[0]) != nullptr;
    EXPECT_EQ(chk_new_passwd(text, nullptr, 0, 1), allowed ? 3 : 7) << text;
  }
  EXPECT_STREQ(passwd_chars(), "a-z A-Z 0-9 . , - + / : ; # @");
}

TEST(Passwords, ChangeTakesItsChecksInOrder) {
  constexpr char a[] = "new1", b[] = "new2";
  const struct {
    const char* stored;
    passwd_entry entry;  // the old text, then status and text of both new entries
    int32_t verify, status;
  } cases[] = {
      {kLetmein, {0, "bad", 0, a, 5, b}, 1, 0},     {kLetmein, {0, "bad", 6, a, 5, b}, 1, 6},
      {kLetmein, {0, "bad", 3, a, 0, {}}, 1, 5},    {kLetmein, {0, "bad", 3, {}, 3, b}, 1, 0},
      {kLetmein, {0, "bad", 3, a, 3, {}}, 1, 0},    {kLetmein, {0, {}, 3, a, 3, a}, 1, 4},
      {kLetmein, {0, kLetmein, 3, a, 3, a}, 1, 4},  {kLetmein, {0, "bad", 3, a, 3, b}, 1, 4},
      {kLetmein, {0, "letmein", 3, a, 3, b}, 1, 5}, {kLetmein, {0, "letmein", 3, a, 3, a}, 1, 1},
      {kLetmein, {0, {}, 3, a, 3, a}, 0, 1},        {"clear", {0, "Clear", 3, a, 3, a}, 1, 4},
      {"clear", {0, "clear", 3, a, 3, a}, -1, 1},   {"", {0, "", 3, a, 3, a}, 1, 1}};
  const test::TempDir first, second;
  passwd_state state;
  for (const auto& c : cases) {
    first.put("pw", c.stored);
    second.put("pw", "other");
    state.status = 5;
    EXPECT_EQ(rd_passwd(first.c_str(), "pw", &state, 77), c.stored == kLetmein ? 0x31 : 0);
    EXPECT_EQ(joined(state.status, state.length), joined(0, strlen(c.stored)));
    update_pw(&c.entry, &state, second.c_str(), c.verify);
    EXPECT_EQ(state.status, c.status) << &c - cases;
    EXPECT_STREQ(state.stored, c.stored);
    const bool changed = c.status == PW_STATUS_CHANGED;
    const std::string written = first.get("pw").value();
    EXPECT_EQ(written, changed ? hash_by_openssl(a, written) : c.stored);
    EXPECT_EQ(second.get("pw"), changed ? written : "other");
    EXPECT_EQ(state.scheme, changed || c.stored == kLetmein ? 0x31 : 0);
  }
  EXPECT_EQ(rd_passwd(first.c_str(), "missing", &state, 0), 0);
  EXPECT_TRUE(state.length < 0 && state.scheme == 0 && *state.stored == '\0');
  const passwd_entry entry = {0, nullptr, 3, a, 3, a};
  update_pw(&entry, &state, first.c_str(), 0);
  EXPECT_EQ(state.status, PW_STATUS_CHANGED);
  EXPECT_FALSE(first.get("missing").has_value());
  char token[] = "*0";
  for (char* answer : {static_cast<char*>(nullptr), token}) {
    crypt_answer = &answer;
    update_pw(&entry, &state, first.c_str(), 0);
    EXPECT_EQ(state.status, PW_STATUS_NO_HASH);
    EXPECT_NE(crypt_cmp(0x31, token, a), 0);
  }
  crypt_answer = nullptr;
}

TEST(Passwords, ItemsStoreOnlyWhatWasEnteredAnew) {
  const test::TempDir dir;
  const auto update = [&](uint32_t maximum, textbox_filter filter) {
    return [=, &dir](const std::string& text) {
      uint32_t rejected = 99;
      dir.put("i", "old\n");
      const int32_t result =
          update_password_item(dir.c_str(), "i", text.c_str(), maximum, filter, &rejected);
      return joined(result, rejected, *dir.get("i"));
    };
  };
  expect_rows(
      "new=4 0 new\n|\u2022\u2022=0 0 old\n|new\u2022=0 0 old\n|n-e-w\u2022=0 2 old\n|=1 0 \n|"
      "n\377ew\303=4 0 new\n",
      update(8, textbox_filter_alnum));
  expect_rows("new-\u2022=4 0 new\n", update(3, textbox_filter_alnum));
  expect_rows(" new=0 1 old\n", update(8, textbox_filter_octet));
  expect_rows("-=2 0 -\n|\337\377=0 0 old\n", update(8, nullptr));  // the last becomes longer
  EXPECT_EQ(update(2, nullptr)(std::string(64 << 20, 'x')), "3 0 xx\n");
  EXPECT_EQ(update_password_item("none", "none", "\u2022", 8, nullptr, nullptr), 0);
}

}  // namespace
