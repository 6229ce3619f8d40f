// What the process's own streams are.
#pragma once

#include <functional>
#include <string_view>

namespace quillvane {

// Makes a broken pipe an error of the write, not the end of the process, and lets results go out
// byte by byte. Called once, first.
void prepare_streams();

enum class Written {
  kAll,
  kReaderGone,  // nobody reads what is written: the other end of the pipe is closed
  kFailed,
};

// Writes all of the text to standard output, past every buffer.
[[nodiscard]] Written write_output(std::string_view text);

// Waits until standard input can be read; false when `interrupted`, which a signal handler makes
// true, holds before.
[[nodiscard]] bool await_input(const std::function<bool()>& interrupted);

[[nodiscard]] bool input_is_terminal();
[[nodiscard]] bool output_is_terminal();
[[nodiscard]] bool output_takes_bold();
[[nodiscard]] bool error_is_terminal();
// Width of the terminal behind standard error.
[[nodiscard]] int error_columns();

}  // namespace quillvane
