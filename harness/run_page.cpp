#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>

#include "tavik_harness.h"

namespace tavik_harness {

namespace {

struct Pipe {
  int read_end = -1;
  int write_end = -1;
  Pipe() {
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) == 0) read_end = ends[0], write_end = ends[1];
  }
};

// A page can end without reading its body: the write then fails, and no signal ends the caller.
class IgnoredSigpipe {
 public:
  IgnoredSigpipe() : before_(signal(SIGPIPE, SIG_IGN)) {}
  ~IgnoredSigpipe() { signal(SIGPIPE, before_); }
  IgnoredSigpipe(const IgnoredSigpipe&) = delete;
  IgnoredSigpipe& operator=(const IgnoredSigpipe&) = delete;

 private:
  sighandler_t before_;
};

std::vector<char*> pointers(std::vector<std::string>& texts) {
  std::vector<char*> list;
  for (std::string& text : texts) list.push_back(text.data());
  list.push_back(nullptr);
  return list;
}

pid_t start(const std::string& program, const PageRequest& request, int input, int output) {
  std::vector<std::string> words = request.runner;
  words.push_back(program);
  words.insert(words.end(), request.arguments.begin(), request.arguments.end());
  std::vector<std::string> environment;
  for (const auto& [name, value] : request.environment) environment.push_back(name + "=" + value);
  const std::vector<char*> argv = pointers(words);
  const std::vector<char*> envp = pointers(environment);
  const pid_t child = fork();
  if (child != 0) return child;
  signal(SIGPIPE, SIG_DFL);
  dup2(input, STDIN_FILENO);
  dup2(output, STDOUT_FILENO);
  execvpe(argv[0], argv.data(), envp.data());
  _exit(127);
}

// Writes the next piece, as much of it as fits; false when there is no more to do.
bool feed(int fd, const std::string& body, size_t piece, size_t& sent) {
  const ssize_t done = write(fd, body.data() + sent, std::min(piece, body.size() - sent));
  if (done > 0) sent += static_cast<size_t>(done);
  return done > 0 && sent < body.size();
}

bool drain(int fd, std::string& text) {
  char buffer[65536];
  const ssize_t got = read(fd, buffer, sizeof buffer);
  if (got > 0) text.append(buffer, static_cast<size_t>(got));
  return got > 0;
}

// Feeds the body to input, which may be -1, and collects the output; closes both.
std::string exchange(int input, int output, const PageRequest& request) {
  std::string text;
  size_t sent = 0;
  if (input >= 0) fcntl(input, F_SETFL, O_NONBLOCK);
  while (output >= 0) {
    pollfd ends[] = {{output, POLLIN, 0}, {input, POLLOUT, 0}};
    if (poll(ends, 2, -1) < 0) continue;
    if (ends[1].revents != 0 && !feed(input, request.body, request.piece, sent)) {
      close(input);
      input = -1;
    }
    if (ends[0].revents != 0 && !drain(output, text)) {
      close(output);
      output = -1;
    }
  }
  if (input >= 0) close(input);
  return text;
}

int exit_status(pid_t child) {
  int status = 0;
  if (child < 0 || waitpid(child, &status, 0) != child) return -1;
  return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

PageAnswer run_from_file(const std::string& program, const PageRequest& request) {
  const int file = memfd_create("body", MFD_CLOEXEC);
  const std::string& body = request.body;
  if (write(file, body.data(), body.size()) != static_cast<ssize_t>(body.size())) return {};
  lseek(file, 0, SEEK_SET);
  const Pipe output;
  const pid_t child = start(program, request, file, output.write_end);
  close(output.write_end);
  PageAnswer answer;
  answer.output = exchange(-1, output.read_end, request);
  answer.status = exit_status(child);
  answer.unread = body.size() - static_cast<size_t>(lseek(file, 0, SEEK_CUR));
  close(file);
  return answer;
}

PageAnswer run_from_pipe(const std::string& program, const PageRequest& request) {
  const Pipe input;
  const Pipe output;
  const pid_t child = start(program, request, input.read_end, output.write_end);
  close(input.read_end);
  close(output.write_end);
  PageAnswer answer;
  answer.output = exchange(input.write_end, output.read_end, request);
  answer.status = exit_status(child);
  return answer;
}

}  // namespace

PageAnswer run_page(const std::string& program, const PageRequest& request) {
  const IgnoredSigpipe ignored;
  return request.piece == 0 ? run_from_file(program, request) : run_from_pipe(program, request);
}

}  // namespace tavik_harness
