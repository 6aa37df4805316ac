#include "auth/cert_path.h"
#include "auth/file_list.h"
#include "tavik.h"

static_assert(sizeof(void*) != 4 || (sizeof(cert_dir) == 20 && sizeof(cert_tool) == 12));
static_assert(sizeof(void*) != 4 || sizeof(cert_link) == 28);

namespace {

void remove_linked_files(const cert_link* links, const char* name) {
  const auto base = static_cast<int>(tavik::base_length(name));
  for (; links->directory != nullptr; ++links) {
    remove_filef("%s%.*s%s", links->directory, base, name, links->suffix);
  }
}

}  // namespace

int32_t cert_dir_setup(cert_dir* certificates, const char* directory, const cert_tool* tool,
                       const cert_link* links) {
  if (certificates == nullptr) return -1;
  certificates->directory = directory;
  certificates->tool = tool;
  certificates->links = links;
  certificates->count = tavik::list_files(directory, &certificates->list);
  return certificates->count;
}

void cert_dir_free(cert_dir* certificates) {
  if (certificates == nullptr || certificates->list == nullptr) return;
  tavik::free_files(certificates->list, certificates->count);
  certificates->list = nullptr;
  certificates->count = 0;
}

void delete_certificate(cert_dir* certificates, int32_t position) {
  if (certificates == nullptr || position < 0 || position >= certificates->count) return;
  const char* const name = certificates->list[position]->d_name;
  if (remove_filef("%s%s", certificates->directory, name) != 0) return;
  if (certificates->links != nullptr) remove_linked_files(certificates->links, name);
  cert_dir_free(certificates);
  certificates->count = tavik::list_files(certificates->directory, &certificates->list);
}
