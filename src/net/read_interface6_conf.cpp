#include <arpa/inet.h>
#include <fcntl.h>
#include <stdlib.h>
#include <string.h>

#include "items/heap_text.h"
#include "items/unique_fd.h"
#include "tavik.h"

namespace {

constexpr int32_t kTextSize = 4096;

struct Entry {
  unsigned long address[4];
  unsigned index, prefix, scope, flags;
  char name[17];
};

bool scan_entry(const char* line, Entry* entry) {
  unsigned long* const address = entry->address;
  // NOLINTNEXTLINE(cert-err34-c): the kernel wrote these numbers
  return sscanf(line, "%8lx%8lx%8lx%8lx %x %x %x %x %16s", &address[0], &address[1], &address[2],
                &address[3], &entry->index, &entry->prefix, &entry->scope, &entry->flags,
                entry->name) == 9;
}

iface_info info_of(const Entry& entry) {
  iface_info info = {};
  info.address.in6.sin6_family = AF_INET6;
  uint32_t words[4];
  for (int i = 0; i < 4; ++i) words[i] = htonl(static_cast<uint32_t>(entry.address[i]));
  memcpy(&info.address.in6.sin6_addr, words, sizeof words);
  info.address.in6.sin6_scope_id = entry.scope;
  info.netmask.words[0] = entry.index;
  info.netmask.words[1] = entry.prefix;
  info.netmask.words[2] = entry.flags;
  return info;
}

// The file's text on the heap; null if there is no such file or no memory.
char* read_entries() {
  const tavik::UniqueFd file(open("/proc/net/if_inet6", O_RDONLY));
  if (!file.is_open()) return nullptr;
  auto* const text = static_cast<char*>(malloc(kTextSize));
  if (text == nullptr) return nullptr;
  const int32_t length = full_read_fd(file.get(), text, kTextSize - 1);
  text[length < 0 ? 0 : length] = '\0';
  return text;
}

}  // namespace

int32_t read_interface6_conf(const char* name, int32_t (*callback)(const iface_info* info)) {
  const tavik::HeapText text(read_entries());
  if (text.get() == nullptr) return -1;
  int32_t count = 0;
  char* line = text.get();
  while (char* const line_end = strchr(line, '\n')) {
    *line_end = '\0';
    Entry entry;
    if (scan_entry(line, &entry) && (name == nullptr || strcmp(entry.name, name) == 0)) {
      ++count;
      if (name != nullptr && callback != nullptr) {
        const iface_info info = info_of(entry);
        callback(&info);
      }
    }
    line = line_end + 1;
  }
  return count;
}
