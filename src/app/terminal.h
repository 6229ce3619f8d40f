// What the process's own streams are.
#pragma once

namespace quillvane {

// Makes a broken pipe an error of the write, not the end of the process, and lets results go out
// byte by byte. Called once, first.
void prepare_streams();

[[nodiscard]] bool input_is_terminal();
[[nodiscard]] bool output_takes_bold();
[[nodiscard]] bool error_is_terminal();
// Width of the terminal behind standard error.
[[nodiscard]] int error_columns();

}  // namespace quillvane
