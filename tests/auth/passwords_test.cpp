#include <dlfcn.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include "support/page_process.h"
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

constexpr char kLetmein[] = "$1$./abYZ09$WqceMIY3sd9e1sAo/R9kN0";

std::string encode(int32_t scheme, const char* password, uint32_t seed) {
  char* const text = crypt_encode(scheme, password, seed);
  const std::string copy = text;
  free(text);
  return copy;
}

// Another implementation's hash, with the salt of the one given, and a LF.
std::string hash_by_openssl(const std::string& password, const std::string& hash) {
  const std::vector<std::string> arguments{"passwd", "-1", "-salt", hash.substr(3, 8), password};
  return test::run_page("/usr/bin/openssl", {{}, "", 1, arguments}).output;
}

TEST(Passwords, AuthorisationByRemoteUser) {
  const auth_pair table[] = {{"Admin", 1}, {"admin", 0x80000002}, {"admin", 3}, {"", 4}, {}};
  unsetenv("REMOTE_USER");
  EXPECT_EQ(get_auth(table), 0U);
  for (const auto& [user, value] :
       {auth_pair{"admin", 0x80000002}, {"Admin", 1}, {"", 4}, {"adm", 0}, {"admin ", 0}}) {
    setenv("REMOTE_USER", user, 1);
    EXPECT_EQ(get_auth(table), value) << user;
    EXPECT_EQ(get_auth(nullptr), 0U);
  }
}

TEST(Passwords, DetectsHashesByForm) {
  for (const auto& [start, scheme] :
       {std::pair<std::string, int32_t>{"$1$", 0x31}, {"$5$", 0}, {"$1x", 0}, {"x1$", 0}}) {
    const std::string text = start + std::string(32, '$');
    EXPECT_EQ(crypt_detect(text.c_str(), 34), scheme) << text;
    for (const int32_t length : {35, 33, 3, -34}) EXPECT_EQ(crypt_detect(text.c_str(), length), 0);
  }
  EXPECT_EQ(crypt_detect("$1$", 34), 0);
}

TEST(Passwords, HashesAsOthersDo) {
  for (const char* const password : {"", "letmein", "S#+,-./:;@ \xC3\xA4", "0123456789abcdefg"}) {
    const std::string hash = encode(0x31, password, 1);
    EXPECT_EQ(hash + "\n", hash_by_openssl(password, hash));
    for (const char c : hash.substr(3, 8)) EXPECT_TRUE(isalnum(c) || c == '.' || c == '/') << c;
    EXPECT_EQ(crypt_cmp(0x31, hash.c_str(), password), 0);
    EXPECT_NE(crypt_cmp(0x31, hash.c_str(), "other"), 0);
    EXPECT_NE(crypt_cmp(0, hash.c_str(), password), 0);
    EXPECT_EQ(crypt_cmp(0, password, encode(0, password, 1).c_str()), 0);
  }
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

TEST(Passwords, ChecksNewEntries) {
  const std::pair<const char*, int32_t> cases[] = {
      {"", 0},          {"abc", 6},           {"azAZ", 3},         {"09#+,-./", 3},
      {":;@abcdef", 6}, {":;@abcdef!", 7},    {"abcd\xC3\xA4", 7}, {"abcd\xE4\x80\xA3", 7},
      {"\xFFpass", 0},  {"pass\xFFword!", 3}, {"pas\xFFword", 6}};
  for (const auto& [text, status] : cases) {
    const char* accepted = nullptr;
    EXPECT_EQ(chk_new_passwd(text, &accepted, 4, 8), status) << text;
    EXPECT_EQ(accepted, status == PW_STATUS_ACCEPTED ? text : nullptr) << text;
  }
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
    EXPECT_EQ(state.status, 0);
    EXPECT_EQ(state.length, static_cast<int32_t>(strlen(c.stored)));
    update_pw(&c.entry, &state, second.c_str(), c.verify);
    EXPECT_EQ(state.status, c.status) << &c - cases;
    EXPECT_STREQ(state.stored, c.stored);
    const bool changed = c.status == PW_STATUS_CHANGED;
    const std::string written = first.get("pw").value();
    EXPECT_EQ(written, changed ? hash_by_openssl(a, written) : c.stored);
    EXPECT_EQ(second.get("pw"), changed ? written : "other");
    EXPECT_EQ(state.scheme, changed || c.stored == kLetmein ? 0x31 : 0);
  }
}

TEST(Passwords, ChangeWithoutAnItemOrAHash) {
  const test::TempDir dir;
  const passwd_entry entry = {0, nullptr, 3, "new1", 3, "new1"};
  passwd_state state;
  EXPECT_EQ(rd_passwd(dir.c_str(), "missing", &state, 0), 0);
  EXPECT_TRUE(state.length < 0 && state.scheme == 0 && *state.stored == '\0');
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
