// Which buttons are enabled when, and the commands that start and stop a scan.
#include <initializer_list>

#include "cleaning/cleaning_run.h"
#include "core/junk_commands.h"

namespace quillvane {

namespace {

constexpr int kToolbarReport = 14;

}  // namespace

void JunkCommands::enter_state(ButtonState state) {
  const auto result_buttons = [this](bool enabled) {
    for (Button* button : {&cmd_clean, &cmd_all, &cmd_non}) button->set_enabled(enabled);
  };
  const auto list_buttons = [this](bool enabled) {
    for (Button* button : {&cmd_custom, &cmd_ignore}) button->set_enabled(enabled);
  };
  switch (state) {
    case ButtonState::kFresh:
      cmd_start.set_enabled(true);
      cmd_cancel.set_enabled(false);
      result_buttons(false);
      list_buttons(true);
      enable_report(false);
      break;
    case ButtonState::kScanning:
      cmd_start.set_enabled(false);
      cmd_cancel.set_enabled(true);
      result_buttons(false);
      list_buttons(false);
      enable_report(false);
      break;
    case ButtonState::kCustomGroup:
      cmd_cancel.set_enabled(false);
      break;
    case ButtonState::kDone:
      cmd_start.set_enabled(true);
      result_buttons(true);
      list_buttons(true);
      break;
    case ButtonState::kCancelling:
      if (junk_.view1.count() >= 1) result_buttons(true);
      cmd_start.set_enabled(true);
      cmd_cancel.set_enabled(false);
      list_buttons(true);
      break;
  }
}

void JunkCommands::enable_report(bool enabled) {
  cmd_report.set_enabled(enabled);
  Toolbar1.set_button_enabled(kToolbarReport, enabled);
}

void JunkCommands::start_button() {
  enter_state(ButtonState::kScanning);
  scan_all();
  enter_state(ButtonState::kDone);
}

// The start button is live while the old scan still unwinds: a click there begins a new scan inside
// the old one. That is how it behaves.
void JunkCommands::cancel_button() {
  junk_.cancelflag = 1;
  enter_state(ButtonState::kCancelling);
}

void JunkCommands::clean_button() {
  if (!confirm_cleaning(junk_)) return;
  orvbutton2.click();
  if (session.cleaning_ended()) return;
  enter_state(ButtonState::kScanning);
  scan_all();
  // The start and cancel buttons stay as the scan has left them.
  for (Button* button : {&cmd_clean, &cmd_all, &cmd_non, &cmd_custom, &cmd_ignore}) {
    button->set_enabled(true);
  }
  enable_report(true);
}

void JunkCommands::enter_rescan(bool running) {
  cmd_start.set_enabled(!running);
  cmd_cancel.set_enabled(running);
  for (Button* button : {&cmd_clean, &cmd_all, &cmd_non, &cmd_custom}) {
    button->set_enabled(!running);
  }
}

void JunkCommands::lock_removers() {
  for (Control* remover :
       std::initializer_list<Control*>{&cmd_clean, &orvbutton2, &stc, &b1, &b2}) {
    remover->set_locked(!junk_.may_remove());
  }
  if (!junk_.may_remove()) enable_toolbar({kToolbarClean}, false);
}

void JunkCommands::enable_toolbar(std::initializer_list<int> numbers, bool enabled) {
  for (const int number : numbers) {
    Toolbar1.set_button_enabled(number, enabled && (number != kToolbarClean || junk_.may_remove()));
  }
}

void JunkCommands::toolbar_start() {
  enable_toolbar({5, 6, 9, 10, 12, 13, 1, 2, 3}, false);
  enable_toolbar({7}, true);
  scan_all();
  enable_toolbar({5, 6, 9, 10, 12, 13}, true);
}

void JunkCommands::toolbar_clean() {
  if (!confirm_cleaning(junk_)) return;
  orvbutton2.click();
  if (!session.cleaning_ended()) toolbar_start();
}

void JunkCommands::toolbar_cancel() {
  junk_.cancelflag = 1;
  if (junk_.view1.count() >= 1) enable_toolbar({6, 9, 10}, true);
  enable_toolbar({1, 2, 3, 5}, true);
  enable_toolbar({7}, false);
  enable_toolbar({12, 13}, true);
}

void JunkCommands::toolbar_page(const std::function<void()>& open_page) {
  enable_toolbar({5}, true);
  enable_toolbar({6, 9, 10, 12}, false);
  open_page();
}

void JunkCommands::toolbar_button(int number) {
  switch (number) {
    case 1:
      toolbar_page(to_drives);
      break;
    case 2:
      toolbar_page(to_types);
      break;
    case 3:
      toolbar_page(to_lists);
      break;
    case 5:
      toolbar_start();
      break;
    case kToolbarClean:
      toolbar_clean();
      break;
    case 7:
      toolbar_cancel();
      break;
    case 9:
      junk_.show_everything(true);
      break;
    case 10:
      junk_.show_everything(false);
      break;
    case 12:
      on_custom_list();
      break;
    case 13:
      on_ignore_list();
      break;
    case kToolbarReport:
      write_report();
      break;
    case 16:
      start_eraser();
      break;
    default:
      break;
  }
}

}  // namespace quillvane
