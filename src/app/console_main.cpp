// quillvane: the console program.

#include <iostream>
#include <string>
#include <vector>

#include "app/make_machine_host.h"
#include "app/terminal.h"
#include "view/console/console.h"

int main(int argc, char** argv) {
  std::ios::sync_with_stdio(false);
  quillvane::prepare_streams();
  quillvane::ConsoleIo io{std::cin,
                          std::cout,
                          std::cerr,
                          quillvane::output_takes_bold(),
                          quillvane::error_is_terminal(),
                          quillvane::error_columns(),
                          quillvane::input_is_terminal()};
  const auto host = quillvane::make_machine_host();
  return quillvane::run_console(std::vector<std::string>(argv + 1, argv + argc), io, *host);
}
