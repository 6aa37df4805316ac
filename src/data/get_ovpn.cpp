#include "tavik.h"

namespace {

// Arrays, not pointers: no relocations.
struct Row {
  char value[13];
  char label[17];
};

constexpr Row kCiphers[] = {
    {"AES-128-CBC", "AES 128 Bit"},
    {"AES-192-CBC", "AES 192 Bit"},
    {"AES-256-CBC", "AES 256 Bit"},
    {"BF-CBC", "BLOWFISH 128 Bit"},
    {"DES-CBC", "DES 64 Bit"},
    {"DES-EDE-CBC", "DES EDE 128 Bit"},
    {"DES-EDE3-CBC", "DES EDE3 192 Bit"},
    {"DESX-CBC", "DESX 192 Bit"},
    {"CAST5-CBC", "CAST5 128 Bit"},
    {"RC2-40-CBC", "RC2 40 Bit"},
    {"RC2-64-CBC", "RC2 64 Bit"},
    {"RC2-CBC", "RC2 128 Bit"},
    {"none", "None"},
};

constexpr Row kDigests[] = {
    {"MD5", "MD5"},       {"SHA1", "SHA1"},     {"SHA224", "SHA224"}, {"SHA256", "SHA256"},
    {"SHA384", "SHA384"}, {"SHA512", "SHA512"}, {"none", "None"},
};

template <uint32_t count>
int32_t get_row(const Row (&rows)[count], uint32_t index, selectbox_text_option* out) {
  if (index >= count) return -1;
  if (out != nullptr) *out = {rows[index].value, rows[index].label};
  return 1;
}

}  // namespace

int32_t get_ovpn_cipher(uint32_t index, uintptr_t /*arg*/, selectbox_text_option* out) {
  return get_row(kCiphers, index, out);
}

int32_t get_ovpn_hash(uint32_t index, uintptr_t /*arg*/, selectbox_text_option* out) {
  return get_row(kDigests, index, out);
}
