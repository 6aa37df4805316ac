// Every call of every flow fails once, alone and with all behind it: no crash, nothing left on the
// heap or open, and of results and files only what the flow's contract tells.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cerrno>

#include "support/input_file.h"
#include "support/temp_dir.h"
#include "tavik.h"
#include "torture/faults.h"
#include "torture/flows.h"

namespace {

namespace fs = std::filesystem;

// What has become of the first files, and what else there is.
std::string difference(const test::TempDir& dir) {
  std::map<std::string, std::string> changed;
  for (const auto& entry : fs::recursive_directory_iterator(dir.c_str())) {
    const std::string name = fs::relative(entry.path(), dir.c_str());
    if (entry.is_regular_file()) changed[name] = *dir.get(name);
  }
  for (const auto& [name, bytes] : test::first_files()) {
    const auto [found, gone] = changed.try_emplace(name, "-");
    if (!gone && found->second == bytes) changed.erase(found);
  }
  std::string text;
  for (const auto& [name, bytes] : changed) text += " " + name + "[" + bytes + "]";
  return text;
}

test::Damage run(const test::Flow& flow, const test::Fault& fault) {
  const test::TempDir dir;
  for (const auto& [name, bytes] : test::first_files()) {
    fs::create_directory(fs::path(dir.path(name)).parent_path());
    dir.put(name, bytes);
  }
  const std::string body = flow.body;
  const test::InputFile input(body);
  const auto setup = [&] {
    dup2(input.fd(), STDIN_FILENO);
    setenv("REQUEST_METHOD", "POST", 1);
    setenv("QUERY_STRING", "q", 1);
    setenv("CONTENT_TYPE", flow.type == nullptr ? "" : flow.type, 1);
    setenv("CONTENT_LENGTH", std::to_string(body.size()).c_str(), 1);
  };
  test::Damage damage = run_under(fault, setup, [&] { flow.run(dir.c_str()); });
  damage.told += difference(dir);
  return damage;
}

// Runs a flow until no call is left that can fail so. The result is the number of failed calls.
long torture(const test::Flow& flow, int error, bool for_good) {
  const char* const pattern = error == ENOMEM ? flow.no_memory : flow.no_io;
  const bool shows = error != EINTR && error != test::kShort && pattern != nullptr;
  const std::string whole = std::string("(") + flow.whole + ")";
  long injected = 0;
  for (long call = 0; call < 500; ++call) {
    const test::Damage damage = run(flow, {error, call, for_good});
    SCOPED_TRACE(std::string(flow.name) + ", errno " + std::to_string(error) + " at call " +
                 std::to_string(call) + (for_good ? " and on" : ""));
    const std::string told = shows && damage.injected > 0 ? whole + "|" + pattern : whole;
    EXPECT_THAT(damage.told, testing::MatchesRegex(told));
    EXPECT_TRUE(error != ENOMEM || pattern != nullptr || damage.injected == 0) << "uses the heap";
    injected += damage.injected;
    if (damage.injected == 0) return injected;
  }
  ADD_FAILURE() << flow.name << " has no end";
  return injected;
}

void torture_all(const char* what, std::initializer_list<int> errors) {
  long injected = 0;
  for (const test::Flow& flow : test::flows()) {
    for (const int error : errors) {
      if (error != test::kShort) injected += torture(flow, error, false);
      if (error != EINTR && error != EMFILE) injected += torture(flow, error, true);
    }
  }
  printf("%s that failed: %ld\n", what, injected);
}

TEST(Torture, Memory) {
  torture_all("allocations", {ENOMEM});
}

TEST(Torture, Calls) {
  torture_all("system calls", {EIO, ENOSPC, EINTR, EMFILE, test::kShort});
}

}  // namespace
