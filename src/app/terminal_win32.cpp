#include <fcntl.h>
#include <io.h>

#include <cstdio>

#include "app/terminal.h"

namespace quillvane {

// Windows has no signal for it: the write fails. Results go out as they are, with no line ends put
// in: a registration file has its own.
void prepare_streams() { _setmode(_fileno(stdout), _O_BINARY); }

// A console of Windows shows the escapes as they stand unless it was told otherwise.
bool input_is_terminal() { return _isatty(_fileno(stdin)) != 0; }

bool output_takes_bold() { return false; }

bool error_is_terminal() { return _isatty(_fileno(stderr)) != 0; }

int error_columns() { return 80; }

}  // namespace quillvane
