#include "auth/cert_path.h"

#include <stdlib.h>
#include <string.h>

#include "items/join_directory.h"

namespace tavik {

size_t base_length(const char* name) {
  const char* const extension = strrchr(name, '.');
  return extension != nullptr ? static_cast<size_t>(extension - name) : strlen(name);
}

char* cert_path(const char* directory, const char* name, const char* suffix) {
  if (directory == nullptr || name == nullptr) return nullptr;
  const size_t directory_length = strlen(directory);
  const size_t name_length = suffix != nullptr ? base_length(name) : strlen(name);
  if (suffix == nullptr) suffix = "";
  const size_t suffix_size = strlen(suffix) + 1;
  auto* const path = static_cast<char*>(malloc(directory_length + 1 + name_length + suffix_size));
  if (path == nullptr) return nullptr;
  char* const base = path + join_directory(path, directory, directory_length, name);
  memcpy(base, name, name_length);
  memcpy(base + name_length, suffix, suffix_size);
  return path;
}

}  // namespace tavik
