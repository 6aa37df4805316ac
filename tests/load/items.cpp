// Many page processes save the same items at once while others read them. A value read is one that
// somebody wrote, or empty for the moment between truncation and write; no process fails, or ends
// with more descriptors than it began with. TAVIK_LOAD_SECONDS is for how long, 3 by default.
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>

#include "support/next_descriptor.h"
#include "support/temp_dir.h"
#include "tavik.h"

namespace {

constexpr int kItems = 20;
constexpr int kSavers = 32;
constexpr int kReaders = 8;
constexpr int kMostRounds = 100000;

struct Totals {
  std::atomic<long> saved, read, empty;
} * totals;

// A value is 8 bytes with its line feed, which a kernel copies at once: no reader meets a half of
// it ahead of a half of another.
bool save(const char* dir, int saver, int round, int item) {
  char value[16];
  snprintf(value, sizeof value, "%07d", item * 100000 + saver * 1000 + round % 1000);
  ++totals->saved;
  return update_item(dir, std::to_string(item).c_str(), value, 7) == 8;
}

bool read_back(const char* dir, int item) {
  char value[16];
  const int32_t length = read_item(dir, std::to_string(item).c_str(), value, sizeof value - 1);
  ++totals->read;
  if (length == 0) return ++totals->empty > 0;
  const int number = atoi(value);
  return length == 7 && strspn(value, "0123456789") == 7 && number / 100000 == item &&
         number / 1000 % 100 < kSavers;
}

int work(const char* dir, int process, time_t end) {
  const int before = test::next_descriptor();
  for (int round = 0; round < kMostRounds && time(nullptr) < end; ++round) {
    for (int item = 0; item < kItems; ++item) {
      if (process < kSavers ? save(dir, process, round, item) : read_back(dir, item)) continue;
      fprintf(stderr, "process %d failed at item %d, round %d\n", process, item, round);
      return 1;
    }
  }
  return test::next_descriptor() == before ? 0 : 1;
}

}  // namespace

int main() {
  const char* const seconds = getenv("TAVIK_LOAD_SECONDS");
  const time_t end = time(nullptr) + (seconds == nullptr ? 3 : atoi(seconds));
  const test::TempDir dir;
  for (int item = 0; item < kItems; ++item) dir.put(std::to_string(item), "");
  totals = static_cast<Totals*>(
      mmap(nullptr, sizeof(Totals), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0));
  for (int process = 0; process < kSavers + kReaders; ++process) {
    if (fork() == 0) _exit(work(dir.c_str(), process, end));
  }
  int failed = 0;
  for (int status = 0; wait(&status) > 0;) failed += status != 0;
  for (int item = 0; item < kItems; ++item) failed += !read_back(dir.c_str(), item);
  printf("%ld saves, %ld values read, %ld of them empty; %d failures\n", totals->saved.load(),
         totals->read.load(), totals->empty.load(), failed);
  return failed == 0 ? 0 : 1;
}
