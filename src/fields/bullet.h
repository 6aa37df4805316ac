// The sign that a box shows for each character of a password, and that comes back untouched.
#ifndef TAVIK_FIELDS_BULLET_H
#define TAVIK_FIELDS_BULLET_H

#include <stdint.h>

namespace tavik {

constexpr uint32_t kBullet = 0x2022;

}  // namespace tavik

#endif
