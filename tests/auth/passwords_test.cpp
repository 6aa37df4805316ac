#include <dlfcn.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include "support/page_process.h"
#include "support/temp_dir.h"
#include "tavik.h"

namespace {

// While it is not null, crypt() answers what it points to.
char** crypt_answer = nullptr;

}  // namespace

extern "C" char* crypt(const char* key, const char* setting) {
  const auto real =
      reinterpret_cast<char* (*)(const char*, const char*)>(dlsym(RTLD_NEXT, "crypt"));
  return crypt_answer != nullptr ? *crypt_answer : real(key, setting);
}

namespace {

constexpr char kLetmein[] = "$1$./abYZ09$WqceMIY3sd9e1sAo/R9kN0";

std::string encode(int32_t scheme, const char* password, uint32_t seed) {
  char* const text = crypt_encode(scheme, password, seed);
  std::string copy = text == nullptr ? "null" : text;
  free(text);
  return copy;
}

// Another implementation's hash of the password, with the salt of the one given, and a LF.
std::string hash_by_openssl(const std::string& password, const std::string& hash) {
  const std::vector<std::string> arguments{"passwd", "-1", "-salt", hash.substr(3, 8), password};
  return test::run_page("/usr/bin/openssl", {{}, "", 1, arguments}).output;
}

TEST(Passwords, AuthorisationByRemoteUser) {
  const auth_pair table[] = {{"Admin", 1}, {"admin", 0x80000002}, {"admin", 3}, {"", 4}, {}};
  const std::pair<const char*, uint32_t> cases[] = {
      {"admin", 0x80000002}, {"Admin", 1}, {"", 4}, {"adm", 0}, {"admin ", 0}};
  unsetenv("REMOTE_USER");
  EXPECT_EQ(get_auth(table), 0U);
  for (const auto& [user, value] : cases) {
    setenv("REMOTE_USER", user, 1);
    EXPECT_EQ(get_auth(table), value) << user;
    EXPECT_EQ(get_auth(nullptr), 0U);
  }
}

TEST(Passwords, DetectsHashesByForm) {
  const std::pair<std::string, int32_t> cases[] = {
      {"$1$", 0x31}, {"$1$$", 0x31}, {"$5$x", 0}, {"$1xx", 0}, {"x1$x", 0}, {{"$1$\0", 4}, 0}};
  for (const auto& [start, scheme] : cases) {
    const std::string text = start + std::string(35 - start.size(), 'x');
    EXPECT_EQ(crypt_detect(text.data(), 34), scheme) << text;
    for (const int32_t length : {33, 35, 3, 0, -34})
      EXPECT_EQ(crypt_detect(text.data(), length), 0);
  }
}

TEST(Passwords, HashesAsOthersDo) {
  for (const char* const password : {"", "letmein", "S#+,-./:;@ \xC3\xA4", "0123456789abcdefg"}) {
    const std::string hash = encode(0x31, password, 1);
    EXPECT_THAT(hash, testing::MatchesRegex("[$]1[$][./0-9A-Za-z]{8}[$][./0-9A-Za-z]{22}"));
    EXPECT_EQ(hash + "\n", hash_by_openssl(password, hash));
    EXPECT_EQ(crypt_cmp(0x31, hash.c_str(), password), 0);
    EXPECT_NE(crypt_cmp(0x31, hash.c_str(), "other"), 0);
    EXPECT_NE(crypt_cmp(0, hash.c_str(), password), 0);
    EXPECT_EQ(crypt_cmp(0, password, password), 0);
    EXPECT_EQ(encode(0, password, 1), password);
  }
  EXPECT_NE(crypt_cmp(0, nullptr, ""), 0);
  EXPECT_NE(crypt_cmp(0x31, kLetmein, nullptr), 0);
}

TEST(Passwords, SaltComesFromSeedProcessAndTime) {
  std::string hash;
  time_t now = 0;
  do {  // until the clock did not tick in between
    now = time(nullptr);
    hash = encode(0x31, "", 0U - static_cast<uint32_t>(getpid()) - static_cast<uint32_t>(now));
  } while (time(nullptr) != now);
  EXPECT_EQ(hash.substr(0, 12), "$1$ilERA5tf$");
}

TEST(Passwords, ChecksNewEntries) {
  EXPECT_STREQ(passwd_chars(), "a-z A-Z 0-9 . , - + / : ; # @");
  const std::pair<const char*, int32_t> cases[] = {
      {"", 0},          {"abc", 6},           {"azAZ", 3},         {"09#+,-./", 3},
      {":;@abcdef", 6}, {":;@abcdef!", 7},    {"abcd\xC3\xA4", 7}, {"abcd\xE4\x80\xA3", 7},
      {"\xFFpass", 0},  {"pass\xFFword!", 3}, {"pas\xFFword", 6}};
  for (const auto& [text, status] : cases) {
    const char* accepted = nullptr;
    EXPECT_EQ(chk_new_passwd(text, &accepted, 4, 8), status) << text;
    EXPECT_EQ(accepted, status == PW_STATUS_ACCEPTED ? text : nullptr) << text;
    EXPECT_EQ(chk_new_passwd(text, nullptr, 4, 8), status) << text;
  }
  for (int byte = 1; byte < 128; ++byte) {
    const char text[] = {static_cast<char>(byte), '\0'};
    const bool allowed = isalnum(byte) != 0 || strchr("#+,-./:;@", byte) != nullptr;
    EXPECT_EQ(chk_new_passwd(text, nullptr, 0, 1), allowed ? 3 : 7) << text;
  }
}

TEST(Passwords, ReadsTheStoredOne) {
  const test::TempDir dir;
  const std::pair<std::string, std::string> cases[] = {
      {kLetmein, kLetmein}, {std::string(kLetmein) + "x\n", kLetmein}, {"clear\n", "clear"}};
  for (const auto& [bytes, stored] : cases) {
    dir.put("pw", bytes);
    passwd_state state;
    memset(&state, 5, sizeof state);
    EXPECT_EQ(rd_passwd(dir.c_str(), "pw", &state, 77), stored == kLetmein ? 0x31 : 0);
    EXPECT_EQ(state.stored, stored);
    EXPECT_EQ(state.length, static_cast<int32_t>(stored.size()));
    EXPECT_EQ(state.status, 0);
    EXPECT_EQ(state.caller_word, 77U);
    EXPECT_EQ(rd_passwd(dir.c_str(), "missing", &state, 0), 0);
    EXPECT_EQ(state.scheme, 0);
    EXPECT_STREQ(state.stored, "");
    EXPECT_LT(state.length, 0);
  }
}

TEST(Passwords, ChangeTakesItsChecksInOrder) {
  const struct {
    const char* stored;
    passwd_entry entry;  // the old text, then status and text of both new entries
    int32_t verify, status;
  } cases[] = {{kLetmein, {0, "bad", 0, "new1", 5, "new2"}, 1, 0},
               {kLetmein, {0, "bad", 6, "new1", 5, "new2"}, 1, 6},
               {kLetmein, {0, "bad", 3, "new1", 0, nullptr}, 1, 5},
               {kLetmein, {0, "bad", 3, nullptr, 3, "new2"}, 1, 0},
               {kLetmein, {0, "bad", 3, "new1", 3, nullptr}, 1, 0},
               {kLetmein, {0, nullptr, 3, "new1", 3, "new1"}, 1, 4},
               {kLetmein, {0, kLetmein, 3, "new1", 3, "new1"}, 1, 4},
               {kLetmein, {0, "bad", 3, "new1", 3, "new2"}, 1, 4},
               {kLetmein, {0, "letmein", 3, "new1", 3, "new2"}, 1, 5},
               {kLetmein, {0, "letmein", 3, "new1", 3, "new1"}, 1, 1},
               {kLetmein, {0, nullptr, 3, "new1", 3, "new1"}, 0, 1},
               {"clear", {0, "Clear", 3, "new1", 3, "new1"}, 1, 4},
               {"clear", {0, "clear", 3, "new1", 3, "new1"}, -1, 1},
               {"", {0, "", 3, "new1", 3, "new1"}, 1, 1}};
  const test::TempDir first, second;
  passwd_state state;
  for (const auto& c : cases) {
    first.put("pw", c.stored);
    second.put("pw", "other");
    rd_passwd(first.c_str(), "pw", &state, 0);
    update_pw(&c.entry, &state, second.c_str(), c.verify);
    EXPECT_EQ(state.status, c.status) << &c - cases;
    EXPECT_STREQ(state.stored, c.stored);
    const bool changed = c.status == PW_STATUS_CHANGED;
    const std::string written = first.get("pw").value();
    EXPECT_EQ(written, changed ? hash_by_openssl("new1", written) : c.stored);
    EXPECT_EQ(second.get("pw"), changed ? written : "other");
    EXPECT_TRUE(!changed || state.scheme == 0x31);
  }
}

TEST(Passwords, ChangeWithoutAnItemOrAHash) {
  const test::TempDir dir;
  const passwd_entry entry = {0, nullptr, 3, "new1", 3, "new1"};
  passwd_state state;
  rd_passwd(dir.c_str(), "missing", &state, 0);
  update_pw(&entry, &state, dir.c_str(), 0);
  EXPECT_EQ(state.status, PW_STATUS_CHANGED);
  EXPECT_FALSE(dir.get("missing").has_value());
  char token[] = "*0";
  for (char* answer : {static_cast<char*>(nullptr), token}) {
    crypt_answer = &answer;
    update_pw(&entry, &state, dir.c_str(), 0);
    EXPECT_EQ(state.status, PW_STATUS_NO_HASH);
    EXPECT_NE(crypt_cmp(0x31, token, "new1"), 0);
  }
  crypt_answer = nullptr;
}

}  // namespace
