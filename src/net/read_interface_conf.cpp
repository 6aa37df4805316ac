#include <string.h>

#include "items/heap_text.h"
#include "net/interface_request.h"

static_assert(SIOCGIFCONF == 0x8912);
static_assert(sizeof(void*) != 4 || sizeof(struct ifreq) == 32);

namespace {

constexpr int64_t kRecord = sizeof(struct ifreq);

// The whole list in the kernel's order. A list that fills its buffer may have been cut.
bool list_interfaces(int32_t query, struct ifconf* list, tavik::HeapText* buffer) {
  for (int64_t size = 30 * kRecord; size <= INT32_MAX; size += 10 * kRecord) {
    auto* const grown = static_cast<char*>(realloc(buffer->get(), static_cast<size_t>(size)));
    if (grown == nullptr) return false;
    *buffer->out() = grown;
    list->ifc_buf = grown;
    list->ifc_len = static_cast<int>(size);
    if (ioctl(query, SIOCGIFCONF, list) < 0) return false;
    if (list->ifc_len != size) return true;
  }
  return false;
}

}  // namespace

int32_t read_interface_conf(const char* prefix,
                            int32_t (*callback)(const struct ifreq* request, int32_t number)) {
  const tavik::UniqueFd query = tavik::query_socket();
  if (!query.is_open()) return -1;
  struct ifconf list;
  tavik::HeapText buffer;
  if (!list_interfaces(query.get(), &list, &buffer)) return -1;
  if (callback == nullptr) return 0;
  const size_t prefix_length = prefix == nullptr ? 0 : strlen(prefix);
  int32_t number = 0;
  for (int64_t i = 0; i < list.ifc_len / kRecord; ++i) {
    const struct ifreq* const record = list.ifc_req + i;
    const bool selected =
        prefix_length == 0 || strncmp(record->ifr_name, prefix, prefix_length) == 0;
    if (selected) callback(record, number++);
  }
  return 0;
}
