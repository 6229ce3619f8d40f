// Which buttons are enabled when, and the commands that start and stop a scan.
//
// The command buttons and the tool bar keep their states apart: a door changes the buttons of its
// own kind.
#include <initializer_list>

#include "core/form7.h"

namespace quillvane {

namespace {

constexpr int kToolbarReport = 14;

}  // namespace

void Form7::enter_state(ButtonState state) {
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
      if (view1.count() >= 1) result_buttons(true);
      cmd_start.set_enabled(true);
      cmd_cancel.set_enabled(false);
      list_buttons(true);
      break;
  }
}

void Form7::enable_report(bool enabled) {
  cmd_report.set_enabled(enabled);
  Toolbar1.set_button_enabled(kToolbarReport, enabled);
}

void Form7::start_button() {
  enter_state(ButtonState::kScanning);
  autosearch();
  enter_state(ButtonState::kDone);
}

// The start button is live while the old scan still unwinds: a click there begins a new scan inside
// the old one. That is how it behaves.
void Form7::cancel_button() {
  cancelflag = 1;
  enter_state(ButtonState::kCancelling);
}

void Form7::enable_toolbar(std::initializer_list<int> numbers, bool enabled) {
  for (const int number : numbers) {
    Toolbar1.set_button_enabled(number, enabled && (number != kToolbarClean || may_remove()));
  }
}

void Form7::toolbar_start() {
  enable_toolbar({5, 6, 9, 10, 12, 13, 1, 2, 3}, false);
  enable_toolbar({7}, true);
  autosearch();
  enable_toolbar({5, 6, 9, 10, 12, 13}, true);
}

void Form7::toolbar_clean() {
  if (!confirm_cleaning()) return;
  orvbutton2.click();
  if (!program.cleaning_ended()) toolbar_start();
}

void Form7::toolbar_cancel() {
  cancelflag = 1;
  if (view1.count() >= 1) enable_toolbar({6, 9, 10}, true);
  enable_toolbar({1, 2, 3, 5}, true);
  enable_toolbar({7}, false);
  enable_toolbar({12, 13}, true);
}

void Form7::toolbar_page(const Button& page) {
  enable_toolbar({5}, true);
  enable_toolbar({6, 9, 10, 12}, false);
  page.raise_click();
}

void Form7::toolbar_button(int number) {
  switch (number) {
    case 1:
      toolbar_page(chameleonButton6);
      break;
    case 2:
      toolbar_page(orvbutton8);
      break;
    case 3:
      toolbar_page(chameleonButton1);
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
      show_everything(true);
      break;
    case 10:
      show_everything(false);
      break;
    case 12:
      open_custom_list();
      break;
    case 13:
      open_ignore_list();
      break;
    case kToolbarReport:
      orvbutton3.raise_click();
      break;
    case 16:
      start_eraser();
      break;
    default:
      break;
  }
}

}  // namespace quillvane
