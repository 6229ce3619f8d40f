#include <poll.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <string_view>

#include "app/terminal.h"

namespace quillvane {

namespace {

constexpr int kUsualColumns = 80;

}  // namespace

void prepare_streams() {
  // A write that cannot be done is told like any other failure and does not end the program.
  std::signal(SIGPIPE, SIG_IGN);
  std::signal(SIGXFSZ, SIG_IGN);
}

Written write_output(std::string_view text) {
  while (!text.empty()) {
    const ssize_t size = write(STDOUT_FILENO, text.data(), text.size());
    if (size < 0 && errno == EINTR) continue;
    if (size < 0) return errno == EPIPE ? Written::kReaderGone : Written::kFailed;
    text.remove_prefix(static_cast<std::size_t>(size));
  }
  return Written::kAll;
}

// The signal is let in only while waiting, so that none comes between the look and the wait.
bool await_input(const std::function<bool()>& interrupted) {
  sigset_t blocked;
  sigset_t before;
  sigemptyset(&blocked);
  sigaddset(&blocked, SIGINT);
  sigprocmask(SIG_BLOCK, &blocked, &before);
  int ready = -1;
  while (ready < 0 && !interrupted()) {
    pollfd input{.fd = STDIN_FILENO, .events = POLLIN, .revents = 0};
    ready = ppoll(&input, 1, nullptr, &before);
    if (ready < 0 && errno != EINTR) ready = 1;  // the reading will tell
  }
  sigprocmask(SIG_SETMASK, &before, nullptr);
  return ready > 0;
}

bool output_is_terminal() { return isatty(STDOUT_FILENO) == 1; }

bool input_is_terminal() { return isatty(STDIN_FILENO) == 1; }

bool output_takes_bold() {
  const char* kind = std::getenv("TERM");
  return output_is_terminal() && kind != nullptr && std::string_view(kind) != "dumb";
}

bool error_is_terminal() { return isatty(STDERR_FILENO) == 1; }

int error_columns() {
  winsize size{};
  if (ioctl(STDERR_FILENO, TIOCGWINSZ, &size) != 0 || size.ws_col == 0) return kUsualColumns;
  return size.ws_col;
}

}  // namespace quillvane
