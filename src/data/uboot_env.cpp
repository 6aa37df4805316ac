#include <fcntl.h>
#include <mtd/mtd-user.h>
#include <stdlib.h>
#include <string.h>
#include <sys/ioctl.h>

#include "items/unique_fd.h"
#include "tavik.h"

static_assert((O_RDONLY | O_DSYNC) == 0x1000);
static_assert(MEMGETINFO == 0x80204D01);
static_assert(MTD_NORFLASH == 3 && MTD_DATAFLASH == 6);

namespace {

constexpr uint32_t kChecksumSize = 4;
constexpr uint32_t kLeastSize = kChecksumSize + 1;
constexpr uint32_t kMostSize = 65536;

enum Status : int32_t {
  kGood = 0,
  kWrongType = 1,
  kWrongSize = 2,
  kShort = 3,
  kNoMemory = 4,
  kBadChecksum = 5
};

// The process's one image, and how much behind the checksum may be looked at: 0 for a bad image.
uint8_t* image;
uint32_t environment_size;

uint32_t stored_checksum() {
  return uint32_t{image[3]} << 24 | uint32_t{image[2]} << 16 | uint32_t{image[1]} << 8 | image[0];
}

int32_t load_image(int32_t fd, uint32_t size) {
  environment_size = 0;
  image = static_cast<uint8_t*>(malloc(size));
  if (image == nullptr) return kNoMemory;
  const auto count = static_cast<int32_t>(size);
  if (full_read_fd(fd, image, count) != count) return kShort;
  const uint32_t rest = size - kChecksumSize;
  if (~crc32(UINT32_MAX, image + kChecksumSize, rest) != stored_checksum()) return kBadChecksum;
  environment_size = rest;
  return kGood;
}

// The value if the entry bears the name, which ends at its NUL or its first "=".
const char* value_of(const char* entry, const char* name) {
  while (*name == *entry && *name != '=' && *name != '\0') ++name, ++entry;
  const bool whole_name = *name == '=' || *name == '\0';
  return whole_name && *entry == '=' ? entry + 1 : nullptr;
}

}  // namespace

int32_t read_uboot_env(const char* path) {
  if (path == nullptr) return -1;
  const tavik::UniqueFd device(open(path, O_RDONLY | O_DSYNC));
  if (!device.is_open()) return device.get();
  struct mtd_info_user info = {};
  const int32_t answer = ioctl(device.get(), MEMGETINFO, &info);
  if (answer < 0) return answer;
  if (info.type != MTD_NORFLASH && info.type != MTD_DATAFLASH) return kWrongType;
  if (info.size < kLeastSize || info.size > kMostSize) return kWrongSize;
  return load_image(device.get(), info.size);
}

const char* uboot_getenv(const char* name) {
  if (environment_size == 0 || image == nullptr || name == nullptr) return nullptr;
  const char* entry = reinterpret_cast<const char*>(image) + kChecksumSize;
  const char* const end = entry + environment_size;
  while (entry < end && *entry != '\0') {
    const void* const nul = memchr(entry, '\0', static_cast<size_t>(end - entry));
    if (nul == nullptr) break;
    if (const char* const value = value_of(entry, name)) return value;
    entry = static_cast<const char*>(nul) + 1;
  }
  return nullptr;
}

void free_uboot_env(void) {
  free(image);
}
