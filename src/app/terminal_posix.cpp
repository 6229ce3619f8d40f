#include <sys/ioctl.h>
#include <unistd.h>

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

bool input_is_terminal() { return isatty(STDIN_FILENO) == 1; }

bool output_takes_bold() {
  const char* kind = std::getenv("TERM");
  return isatty(STDOUT_FILENO) == 1 && kind != nullptr && std::string_view(kind) != "dumb";
}

bool error_is_terminal() { return isatty(STDERR_FILENO) == 1; }

int error_columns() {
  winsize size{};
  if (ioctl(STDERR_FILENO, TIOCGWINSZ, &size) != 0 || size.ws_col == 0) return kUsualColumns;
  return size.ws_col;
}

}  // namespace quillvane
