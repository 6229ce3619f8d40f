// quillvane: the console program.

#include <functional>
#include <iostream>
#include <ostream>
#include <string>
#include <vector>

#include "app/make_machine_host.h"
#include "app/picture_tools.h"
#include "app/standard_output.h"
#include "app/terminal.h"
#include "view/console/console.h"

namespace {

bool await_line(const std::function<bool()>& interrupted) {
  // A line of the user's that has been read already waits in the stream.
  return std::cin.rdbuf()->in_avail() > 0 || quillvane::await_input(interrupted);
}

}  // namespace

int main(int argc, char** argv) {
  std::ios::sync_with_stdio(false);
  quillvane::prepare_streams();
  quillvane::StandardOutput output;
  std::ostream out(&output);
  quillvane::ConsoleIo io{.in = std::cin,
                          .out = out,
                          .err = std::cerr,
                          .out_takes_bold = quillvane::output_takes_bold(),
                          .err_is_terminal = quillvane::error_is_terminal(),
                          .err_columns = quillvane::error_columns(),
                          .in_is_terminal = quillvane::input_is_terminal(),
                          .out_is_terminal = quillvane::output_is_terminal(),
                          .await_line = await_line,
                          .reader_gone = [&] { return output.reader_gone(); },
                          .pictures = &quillvane::picture_tools()};
  const auto host = quillvane::make_machine_host();
  return quillvane::run_console(std::vector<std::string>(argv + 1, argv + argc), io, *host);
}
