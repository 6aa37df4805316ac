#include <string.h>

#include "auth/md5_crypt.h"
#include "items/heap_text.h"
#include "tavik.h"

static_assert(sizeof(passwd_state::stored) == tavik::kMd5HashLength + 1);
static_assert(sizeof(void*) != 4 || (sizeof(passwd_state) == 60 && sizeof(passwd_entry) == 24));

namespace {

// Any seed would do; process id and time make the difference.
constexpr uint32_t kSeed = 1;

bool old_password_matches(const passwd_entry& entry, const passwd_state& state) {
  return entry.old_text != nullptr && crypt_cmp(state.scheme, state.stored, entry.old_text) == 0;
}

// Whether the entry is to be stored: PW_STATUS_ACCEPTED, or the status that ends the change. The
// old password is looked at ahead of the repeated entry.
int32_t check_entry(const passwd_entry& entry, const passwd_state& state, bool verify) {
  if (entry.new_status != PW_STATUS_ACCEPTED) return entry.new_status;
  if (entry.repeat_status != PW_STATUS_ACCEPTED) return PW_STATUS_MISMATCH;
  if (entry.repeat_text == nullptr || entry.new_text == nullptr) return PW_STATUS_NONE;
  if (verify && !old_password_matches(entry, state)) return PW_STATUS_BAD_OLD;
  return strcmp(entry.new_text, entry.repeat_text) == 0 ? PW_STATUS_ACCEPTED : PW_STATUS_MISMATCH;
}

int32_t store_password(const char* password, passwd_state* state, const char* second_directory) {
  const tavik::HeapText hash(crypt_encode(tavik::kMd5Scheme, password, kSeed));
  if (hash.get() == nullptr) return PW_STATUS_NO_HASH;
  const auto length = static_cast<int32_t>(strlen(hash.get()));
  update_item(state->directory, state->name, hash.get(), length);
  update_item(second_directory, state->name, hash.get(), length);
  state->scheme = tavik::kMd5Scheme;
  return PW_STATUS_CHANGED;
}

}  // namespace

int32_t rd_passwd(const char* directory, const char* name, passwd_state* state,
                  uintptr_t caller_word) {
  if (state == nullptr) return 0;
  state->caller_word = caller_word;
  state->directory = directory;
  state->name = name;
  state->status = PW_STATUS_NONE;
  state->length = read_item(directory, name, state->stored, tavik::kMd5HashLength);
  // A read that fails half-way leaves bytes behind.
  if (state->length < 0) state->stored[0] = '\0';
  state->scheme = crypt_detect(state->stored, state->length);
  return state->scheme;
}

void update_pw(const passwd_entry* entry, passwd_state* state, const char* second_directory,
               int32_t verify) {
  if (state == nullptr) return;
  state->status = PW_STATUS_NONE;
  if (entry == nullptr) return;
  state->status = check_entry(*entry, *state, verify != 0);
  if (state->status != PW_STATUS_ACCEPTED) return;
  state->status = store_password(entry->new_text, state, second_directory);
}
