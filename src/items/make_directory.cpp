#include <errno.h>
#include <stdio.h>
#include <string.h>
#include <sys/stat.h>

#include "tavik.h"

namespace {

// However strict the caller's umask, the owner can work in the parents made under this one.
class ParentUmask {
 public:
  ParentUmask() : callers_(umask(0)) { umask(callers_ & ~static_cast<mode_t>(S_IWUSR | S_IXUSR)); }
  ~ParentUmask() { umask(callers_); }
  ParentUmask(const ParentUmask&) = delete;
  ParentUmask& operator=(const ParentUmask&) = delete;

 private:
  mode_t callers_;
};

enum class Outcome { kMade, kThere, kFailed };

Outcome make_one(const char* path) {
  if (mkdir(path, 0777) == 0) return Outcome::kMade;
  const int error = errno;
  struct stat status;
  const bool there =
      (error == EEXIST || error == EISDIR) && stat(path, &status) == 0 && S_ISDIR(status.st_mode);
  errno = error;
  return there ? Outcome::kThere : Outcome::kFailed;
}

// Makes all directories of the path but the last. On a failure the path stays cut behind the one
// that failed.
bool make_parents(char* path) {
  const ParentUmask umask_for_parents;
  for (char* cursor = path; (cursor = strchr(cursor, '/')) != nullptr;) {
    cursor += strspn(cursor, "/");
    const char first_of_next = *cursor;
    if (first_of_next == '\0') break;
    *cursor = '\0';
    if (make_one(path) == Outcome::kFailed) return false;
    *cursor = first_of_next;
  }
  return true;
}

int32_t fail_to(const char* action, const char* path) {
  const int error = errno;
  fprintf(stderr, "can't %s directory '%s'", action, path);
  errno = error;
  return -1;
}

}  // namespace

int32_t make_directory(char* path, int32_t mode, uint32_t flags) {
  if (path == nullptr) return -1;
  if (strcmp(path, ".") == 0) return 0;
  const bool parents = (flags & MAKE_DIR_PARENTS) != 0;
  if (parents && !make_parents(path)) return fail_to("create", path);
  const Outcome outcome = make_one(path);
  if (outcome == Outcome::kThere && parents) return 0;
  if (outcome != Outcome::kMade) return fail_to("create", path);
  if (mode != -1 && chmod(path, static_cast<mode_t>(mode)) != 0) {
    return fail_to("set permissions of", path);
  }
  return 0;
}
