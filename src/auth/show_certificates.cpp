#include <dirent.h>

#include "auth/cert_path.h"
#include "items/heap_text.h"
#include "tavik.h"

using tavik::HeapText;

namespace {

uint32_t show_entry(const cert_dir& certificates, const char* name, int32_t position,
                    uintptr_t context, cert_entry_callback entry) {
  const HeapText path(tavik::cert_path(certificates.directory, name, nullptr));
  if (path.get() == nullptr) return 0;
  const cert_tool& tool = *certificates.tool;
  HeapText tooltip;
  asprint_tooltip(tooltip.out(), path.get(), tool.wrapper, tool.command, tool.options);
  return entry(context, name, position, tooltip.get());
}

void show_link(const cert_link& row, const char* name, uint32_t number, cert_link_callback link) {
  const HeapText path(tavik::cert_path(row.directory, name, row.suffix));
  if (path.get() == nullptr) return;
  HeapText tooltip;
  asprint_tooltip(tooltip.out(), path.get(), row.wrapper, row.command, row.options);
  link(row.context, number, row.mask, tooltip.get());
}

void show_links(const cert_dir& certificates, const char* name, uint32_t mask,
                cert_link_callback link) {
  uint32_t number = 0;
  if (read_item_uint(certificates.directory, name, &number) <= 0) return;
  for (const cert_link* row = certificates.links; row->directory != nullptr; ++row) {
    if ((row->mask & mask) != 0) show_link(*row, name, number, link);
  }
}

}  // namespace

void show_certificates(const cert_dir* certificates, uintptr_t context, cert_entry_callback entry,
                       cert_link_callback link) {
  if (certificates == nullptr || certificates->tool == nullptr || entry == nullptr) return;
  const bool has_links = certificates->links != nullptr && link != nullptr;
  for (int32_t position = 0; position < certificates->count; ++position) {
    const struct dirent& file = *certificates->list[position];
    if (file.d_type == DT_DIR) continue;
    const uint32_t mask = show_entry(*certificates, file.d_name, position, context, entry);
    if (mask != 0 && has_links) show_links(*certificates, file.d_name, mask, link);
  }
}
