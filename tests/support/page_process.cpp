#include "support/page_process.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <sstream>
#include <thread>

#include "support/input_file.h"

namespace test {

namespace {

struct Pipe {
  int read_end = -1;
  int write_end = -1;
  Pipe() {
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) == 0) read_end = ends[0], write_end = ends[1];
  }
};

std::vector<char*> pointers(std::vector<std::string>& texts) {
  std::vector<char*> list;
  for (std::string& text : texts) list.push_back(text.data());
  list.push_back(nullptr);
  return list;
}

std::string setting(const char* name, const char* preset) {
  const char* const value = getenv(name);
  return value == nullptr ? preset : value;
}

std::string pages() {
  return setting("TAVIK_TEST_PAGES", TEST_PAGES);
}

// The words that start a program. The suite's own page programs may need an emulator; others are
// the machine's.
std::vector<std::string> command(const std::string& program) {
  if (!program.starts_with(pages())) return {program};
  std::istringstream words(setting("TAVIK_TEST_EMULATOR", TEST_EMULATOR));
  std::vector<std::string> command{std::istream_iterator<std::string>(words), {}};
  command.push_back(program);
  return command;
}

pid_t start(const std::string& program, const PageRequest& request, int input, int output) {
  std::vector<std::string> arguments = command(program);
  arguments.insert(arguments.end(), request.arguments.begin(), request.arguments.end());
  std::vector<std::string> environment;
  for (const auto& [name, value] : request.environment) environment.push_back(name + "=" + value);
  const std::vector<char*> argv = pointers(arguments);
  const std::vector<char*> envp = pointers(environment);
  const pid_t child = fork();
  if (child != 0) return child;
  dup2(input, STDIN_FILENO);
  dup2(output, STDOUT_FILENO);
  execvpe(argv[0], argv.data(), envp.data());
  _exit(127);
}

void feed(int fd, const std::string& body, size_t piece) {
  for (size_t sent = 0; sent < body.size();) {
    const ssize_t done = write(fd, body.data() + sent, std::min(piece, body.size() - sent));
    if (done <= 0) break;
    sent += static_cast<size_t>(done);
  }
  close(fd);
}

std::string drain(int fd) {
  std::string text;
  char buffer[65536];
  for (ssize_t got = 0; (got = read(fd, buffer, sizeof buffer)) > 0;) {
    text.append(buffer, static_cast<size_t>(got));
  }
  close(fd);
  return text;
}

int exit_status(pid_t child) {
  int status = 0;
  waitpid(child, &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

PageAnswer run_from_file(const std::string& program, const PageRequest& request) {
  const InputFile file(request.body);
  const Pipe output;
  const pid_t child = start(program, request, file.fd(), output.write_end);
  close(output.write_end);
  PageAnswer answer;
  answer.output = drain(output.read_end);
  answer.status = exit_status(child);
  answer.unread = file.left();
  return answer;
}

PageAnswer run_from_pipe(const std::string& program, const PageRequest& request) {
  const Pipe input;
  const Pipe output;
  const pid_t child = start(program, request, input.read_end, output.write_end);
  close(input.read_end);
  close(output.write_end);
  std::thread feeder(feed, input.write_end, std::cref(request.body), request.piece);
  PageAnswer answer;
  answer.output = drain(output.read_end);
  feeder.join();
  answer.status = exit_status(child);
  return answer;
}

}  // namespace

PageAnswer run_page(const std::string& program, const PageRequest& request) {
  return request.piece == 0 ? run_from_file(program, request) : run_from_pipe(program, request);
}

std::string page_program(const std::string& name) {
  return pages() + "/" + name;
}

}  // namespace test
