#include <fcntl.h>
#include <io.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>

#include "app/terminal.h"

namespace quillvane {

// Windows has no signal for it: the write fails. Results go out as they are, with no line ends put
// in: a registration file has its own.
void prepare_streams() { _setmode(_fileno(stdout), _O_BINARY); }

Written write_output(std::string_view text) {
  constexpr std::size_t kPortion = 32768;  // a console takes no more at once
  // What Windows says of a pipe without a reader; the C library has a number of its own for but
  // one.
  constexpr unsigned long kBrokenPipe = 109;
  constexpr unsigned long kNoData = 232;
  constexpr unsigned long kNotConnected = 233;
  while (!text.empty()) {
    const int size = _write(_fileno(stdout), text.data(),
                            static_cast<unsigned>(std::min(text.size(), kPortion)));
    if (size <= 0) {
      const unsigned long why = _doserrno;
      const bool gone =
          errno == EPIPE || why == kBrokenPipe || why == kNoData || why == kNotConnected;
      return gone ? Written::kReaderGone : Written::kFailed;
    }
    text.remove_prefix(static_cast<std::size_t>(size));
  }
  return Written::kAll;
}

// A console of Windows shows the escapes as they stand unless it was told otherwise.
bool input_is_terminal() { return _isatty(_fileno(stdin)) != 0; }

bool output_takes_bold() { return false; }

// Windows ends the reading of a console itself when Ctrl-C is pressed.
bool await_input(const std::function<bool()>& interrupted) { return !interrupted(); }

bool output_is_terminal() { return _isatty(_fileno(stdout)) != 0; }

bool error_is_terminal() { return _isatty(_fileno(stderr)) != 0; }

int error_columns() { return 80; }

}  // namespace quillvane
