// Hashes of the MD5 scheme: "$1$", 8 salt characters, "$", 22 hash characters.
#ifndef TAVIK_AUTH_MD5_CRYPT_H
#define TAVIK_AUTH_MD5_CRYPT_H

#include <stdint.h>

namespace tavik {

// The scheme's number is the character that stands for it in a hash.
constexpr int32_t kMd5Scheme = '1';
constexpr int32_t kMd5HashLength = 34;

}  // namespace tavik

#endif
