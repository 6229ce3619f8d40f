// QuillvaneDiskCleaner: the program with its windows, on this PC.

#include <string>

#include "platform/win32/win32_loop.h"
#include "platform/win32/win32_machine.h"
#include "view/win32/run_program.h"
#include "view/win32/win32_dialogs.h"

int main(int argc, char** argv) {
  std::string command_line;
  for (int i = 1; i < argc; ++i) {
    if (i > 1) command_line += ' ';
    command_line += argv[i];
  }
  quillvane::Win32Machine machine;
  quillvane::Win32Dialogs dialogs;
  quillvane::Win32Loop loop;
  quillvane::Program program(machine.platform(dialogs, loop));
  quillvane::run_program(program, loop, command_line);
  return 0;
}
