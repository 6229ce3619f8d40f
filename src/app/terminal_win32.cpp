#include <io.h>

#include <cstdio>

#include "app/terminal.h"

namespace quillvane {

// Windows has no signal for it: the write fails.
void prepare_streams() {}

// A console of Windows shows the escapes as they stand unless it was told otherwise.
bool input_is_terminal() { return _isatty(_fileno(stdin)) != 0; }

bool output_takes_bold() { return false; }

bool error_is_terminal() { return _isatty(_fileno(stderr)) != 0; }

int error_columns() { return 80; }

}  // namespace quillvane
