// The run switches by which the suite drives the program unseen.
#include <string>

#include "core/form7.h"
#include "platform/unicode_case.h"
#include "shortcuts/form3.h"
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

void start_quick_run(Session& session, const std::string& second_half) {
  session.silentmode = 1;
  session.suitemode = second_half == "c4" ? 2 : 1;
  session.shown_at_start = false;
}

void apply_run_switch(Session& session, const std::string& first_half,
                      const std::string& second_half) {
  for (const RunSwitch& known : kRunSwitches) {
    if (first_half != known.first) continue;
    session.silentmode = 1;
    if (second_half == known.second) {
      session.cleanmode = known.cleanmode;
      session.forceclean = known.forceclean;
    }
    session.shown_at_start = false;
  }
}

}  // namespace

void Form7::initialize(std::string_view command_line) {
  session.cmdline = lower_case(Trim(command_line));
  session.cleanmode = 0;
  session.CommandLineGiven = !session.cmdline.empty();
  if (session.CommandLineGiven) {
    const std::vector<std::string> halves = Split(session.cmdline, "-");
    if (halves[0] == "w4") {
      start_quick_run(session, part(halves, 1));
      return;
    }
    apply_run_switch(session, halves[0], part(halves, 1));
    if (session.silentmode == 1) {
      session.known_second_half = halves.size() == 1 || session.cleanmode != 0;
    }
  }
  if (session.cmdline == "g") run_shortcuts_unseen();
  if (session.cmdline == "s") show_shortcuts_alone();
}

// The whole run takes place in here.
void Form7::run_shortcuts_unseen() {
  session.shown_at_start = false;
  if (load_shortcuts) {
    Form3& shortcuts = load_shortcuts();
    shortcuts.Text6.set_text("");
    shortcuts.Text6.set_text("1");
    shortcuts.hide();
  }
  session.silentmode = 2;
  session.HiddenRun = 1;
}

void Form7::show_shortcuts_alone() {
  session.CommandLineGiven = true;
  session.shown_at_start = false;
  session.HiddenRun = 1;
  open_shortcuts();
}

}  // namespace quillvane
