// The boot loader's variables: an image with a checksum that is right unless the input says no, and
// a name to look up.
#include <mtd/mtd-user.h>
#include <stdarg.h>
#include <sys/ioctl.h>

#include "harness.h"

namespace {

mtd_info_user device;

// Bit by bit, over a register that is shifted the other way round.
uint32_t checksum(const std::string& bytes) {
  uint32_t crc = UINT32_MAX;
  for (size_t bit = 0; bit < bytes.size() * 8; ++bit) {
    const uint32_t next = static_cast<unsigned char>(bytes[bit / 8]) >> (bit % 8) & 1;
    crc = (crc << 1) ^ ((crc >> 31 ^ next) != 0 ? 0x04C11DB7 : 0);
  }
  uint32_t reflected = 0;
  for (int bit = 0; bit < 32; ++bit) reflected |= (crc >> bit & 1) << (31 - bit);
  return ~reflected;
}

// Null if there is no such variable.
const char* value_in(const std::string& entries, const std::string& name) {
  for (size_t at = 0; at < entries.size() && entries[at] != '\0';) {
    const size_t end = entries.find('\0', at);
    if (end == std::string::npos) break;
    const size_t equals = entries.find('=', at);
    if (equals < end && entries.substr(at, equals - at) == name) return &entries[equals + 1];
    at = end + 1;
  }
  return nullptr;
}

}  // namespace

// The device that the library asks for its kind and size.
extern "C" int ioctl(int /*fd*/, unsigned long request, ...) noexcept {
  va_list arguments;
  va_start(arguments, request);
  *va_arg(arguments, mtd_info_user*) = device;
  va_end(arguments);
  return 0;
}

int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  fuzz::Input input(data, size);
  const uint8_t choice = input.byte();
  std::string name = input.line().c_str();
  const std::string entries = input.rest();
  const uint32_t crc = checksum(entries) + ((choice & 1) != 0 ? 1 : 0);
  std::string image;
  for (int shift = 0; shift < 32; shift += 8) image += static_cast<char>(crc >> shift);
  image += entries;
  device.type = (choice & 2) != 0 ? MTD_DATAFLASH : (choice & 4) != 0 ? MTD_RAM : MTD_NORFLASH;
  device.size = static_cast<uint32_t>(image.size()) + ((choice & 8) != 0 ? 3 : 0);

  const int32_t result = read_uboot_env(fuzz::File(image).path().c_str());
  const int32_t expected = device.type == MTD_RAM                   ? 1
                           : device.size < 5 || device.size > 65536 ? 2
                           : (choice & 8) != 0                      ? 3
                           : (choice & 1) != 0                      ? 5
                                                                    : 0;
  EXPECT(result == expected);
  // Without an image that was begun there is nothing to look at and nothing to free.
  if (result == 1 || result == 2) return 0;
  name = name.substr(0, name.find('='));
  const char* const value = uboot_getenv(fuzz::Exact(name).get());
  const char* const known = result == 0 ? value_in(entries, name) : nullptr;
  EXPECT((value == nullptr) == (known == nullptr));
  EXPECT(value == nullptr || strcmp(value, known) == 0);
  free_uboot_env();
  return 0;
}
