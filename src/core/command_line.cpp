// The run switches by which the suite drives the program unseen.
#include <string>

#include "core/form7.h"
#include "platform/unicode_case.h"
#include "support/text.h"

namespace quillvane {

namespace {

// A first half of a run switch, and what its second half turns on.
struct RunSwitch {
  std::string_view first;
  std::string_view second;
  int cleanmode;
  int forceclean;
};

constexpr RunSwitch kRunSwitches[] = {
    {"w", "c", 1, 0},
    {"w2", "c2", 2, 0},
    {"w3", "c3", 2, 1},
};

}  // namespace

void Form7::initialize(std::string_view command_line) {
  cmdline = lower_case(Trim(command_line));
  cleanmode = 0;
  program.CommandLineGiven = !cmdline.empty();
  if (program.CommandLineGiven) {
    const std::vector<std::string> halves = Split(cmdline, "-");
    if (halves[0] == "w4") {
      start_quick_run(part(halves, 1));
      return;
    }
    apply_run_switch(halves[0], part(halves, 1));
    if (silentmode == 1) known_second_half = halves.size() == 1 || cleanmode != 0;
  }
  if (cmdline == "g") {
    silentmode = 2;
    hide_at_start();
    program.HiddenRun = 1;
  }
  if (cmdline == "s") {
    program.CommandLineGiven = true;
    hide_at_start();
    program.HiddenRun = 1;
  }
}

void Form7::start_quick_run(const std::string& second_half) {
  silentmode = 1;
  suitemode = second_half == "c4" ? 2 : 1;
  hide_at_start();
}

void Form7::apply_run_switch(const std::string& first_half, const std::string& second_half) {
  for (const RunSwitch& known : kRunSwitches) {
    if (first_half != known.first) continue;
    silentmode = 1;
    if (second_half == known.second) {
      cleanmode = known.cleanmode;
      forceclean = known.forceclean;
    }
    hide_at_start();
  }
}

}  // namespace quillvane
