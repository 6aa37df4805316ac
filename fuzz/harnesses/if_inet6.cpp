// The kernel's text of IPv6 addresses. A text of lines as the kernel writes them must be read
// whole, with the addresses as inet_pton() reads them; no other text can be more than skipped.
#include <arpa/inet.h>
#include <ctype.h>
#include <stdarg.h>
#include <sys/syscall.h>

#include "harness.h"

namespace {

std::string table_path;
std::vector<iface_info> infos;

int32_t take(const iface_info* info) {
  infos.push_back(*info);
  return 0;
}

struct Line {
  bool is_regular = false;
  std::string name;
  iface_info info = {};
};

// As the kernel prints it: "%pi6 %02x %02x %02x %02x %8s\n".
Line line_of(const std::string& text) {
  constexpr std::string_view kShape = "hhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhh hh hh hh hh ";
  Line line;
  if (text.size() <= kShape.size()) return line;
  for (size_t i = 0; i < kShape.size(); ++i) {
    const bool is_digit = isxdigit(static_cast<unsigned char>(text[i])) != 0;
    if (kShape[i] == 'h' ? !is_digit : text[i] != ' ') return line;
  }
  line.name = text.substr(kShape.size());
  line.name.erase(0, line.name.find_first_not_of(' '));
  if (line.name.empty() || line.name.size() > 15) return line;
  for (const char c : line.name) {
    if (isalnum(static_cast<unsigned char>(c)) == 0) return line;
  }
  std::string address;
  for (size_t i = 0; i < 32; i += 4) address += text.substr(i, 4) + (i < 28 ? ":" : "");
  const auto number = [&](size_t at) {
    return static_cast<uint32_t>(strtoul(text.substr(at, 2).c_str(), nullptr, 16));
  };
  line.info.address.in6.sin6_family = AF_INET6;
  line.is_regular = inet_pton(AF_INET6, address.c_str(), &line.info.address.in6.sin6_addr) == 1;
  line.info.netmask.words[0] = number(33);
  line.info.netmask.words[1] = number(36);
  line.info.address.in6.sin6_scope_id = number(39);
  line.info.netmask.words[2] = number(42);
  return line;
}

}  // namespace

// The library asks for a file of the kernel's and gets the input.
extern "C" int open64(const char* path, int flags, ...) {
  va_list arguments;
  va_start(arguments, flags);
  const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(arguments, mode_t) : 0;
  va_end(arguments);
  const bool is_table = strcmp(path, "/proc/net/if_inet6") == 0 && !table_path.empty();
  return static_cast<int>(
      syscall(SYS_openat, AT_FDCWD, is_table ? table_path.c_str() : path, flags, mode));
}

int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string text = fuzz::Input(data, size).rest();
  const fuzz::File table(text);
  table_path = table.path();
  const int32_t all = read_interface6_conf(nullptr, take);
  EXPECT(all >= 0 && infos.empty());

  bool is_regular = text.size() < 4096 && (text.empty() || text.back() == '\n') &&
                    text.find('\0') == std::string::npos;
  std::vector<Line> lines;
  for (const std::string& line : fuzz::lines_of(text)) {
    lines.push_back(line_of(line));
    is_regular &= lines.back().is_regular;
  }
  const std::string name = lines.empty() ? "" : lines[0].name;
  std::vector<iface_info> expected;
  for (const Line& line : lines) {
    if (line.name == name) expected.push_back(line.info);
  }
  const int32_t named = read_interface6_conf(name.c_str(), take);
  EXPECT(named <= all && static_cast<size_t>(named) == infos.size());
  if (is_regular) {
    EXPECT(static_cast<size_t>(all) == lines.size() && infos.size() == expected.size());
    for (size_t i = 0; i < infos.size(); ++i) {
      EXPECT(memcmp(&infos[i].address, &expected[i].address, sizeof infos[i].address) == 0);
      EXPECT(memcmp(&infos[i].netmask, &expected[i].netmask, sizeof infos[i].netmask) == 0);
      EXPECT(infos[i].flags == 0);
    }
  }
  infos.clear();
  table_path.clear();
  return 0;
}
