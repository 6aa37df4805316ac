#include <string.h>
#include <time.h>
#include <unistd.h>

#include "auth/md5_crypt.h"
#include "tavik.h"

namespace {

constexpr char kSaltCharacters[] =
    "./0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
constexpr int kSaltPairs = 4;

// Adds the salt's characters, two from each step of a linear congruential generator.
char* put_salt(char* out, uint32_t state) {
  for (int i = 0; i < kSaltPairs; ++i) {
    state = state * 1664525 + 1013904223;
    *out++ = kSaltCharacters[(state >> 16) & 0x3F];
    *out++ = kSaltCharacters[(state >> 22) & 0x3F];
  }
  return out;
}

// What crypt() answers, in its static storage. Null for its failure, which some libraries tell by
// a text such as "*0" instead, that no password matches.
const char* hash(const char* password, const char* setting) {
  const char* const text = crypt(password, setting);
  return text == nullptr || text[0] == '*' ? nullptr : text;
}

}  // namespace

int32_t crypt_detect(const char* text, int32_t length) {
  if (text == nullptr || length != tavik::kMd5HashLength) return 0;
  const bool is_md5 = memcmp(text, "$1$", 3) == 0 && text[3] != '\0';
  return is_md5 ? tavik::kMd5Scheme : 0;
}

int32_t crypt_cmp(int32_t scheme, const char* stored, const char* entered) {
  if (stored == nullptr || entered == nullptr) return -1;
  const char* const text = scheme == 0 ? entered : hash(entered, stored);
  return text == nullptr ? -1 : strcmp(stored, text);
}

char* crypt_encode(int32_t scheme, const char* password, uint32_t seed) {
  if (password == nullptr) return nullptr;
  if (scheme != tavik::kMd5Scheme) return strdup(password);
  const auto now = static_cast<uint32_t>(time(nullptr));
  char setting[3 + 2 * kSaltPairs + 1] = "$1$";
  *put_salt(setting + 3, seed + static_cast<uint32_t>(getpid()) + now) = '\0';
  const char* const text = hash(password, setting);
  return text == nullptr ? nullptr : strdup(text);
}
