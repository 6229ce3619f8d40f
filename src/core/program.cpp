#include "core/program.h"

#include <algorithm>
#include <array>

#include "core/form7.h"
#include "platform/unicode_case.h"
#include "shortcuts/form3.h"

namespace quillvane {

namespace {

constexpr std::array<std::string_view, 7> kWindows = {"Form7", "Form3", "Form1",   "Form2",
                                                      "Form4", "Form5", "frmabout"};

}  // namespace

Program::Program(const Platform& platform) : session(platform), windows(session) {}

Program::~Program() = default;

void Program::start(std::string_view command_line) {
  form7_ = std::make_unique<Form7>(session, windows);
  form7_->load_shortcuts = [this]() -> Form3& { return load_shortcut_window(); };
  form7_->initialize(command_line);
  if (session.ended()) return;  // a run that ends in there
  form7_->load();
  if (session.ended() || !session.shown_at_start) return;
  form7_->show();
  form7_->activate();
}

Form3& Program::load_shortcut_window() {
  if (form3_ == nullptr) {
    form3_ = std::make_unique<Form3>(session, windows);
    form3_->load();
    if (attach_view) form3_view_ = attach_view(*form3_);
  }
  return *form3_;
}

// A cancel of the main window's stays noted until its next scan; it is none of the other window's.
bool Program::awaits_reading() const {
  if (ended()) return false;
  return (form3_ != nullptr && form3_->is_searching()) || form7_->cancelflag != 1;
}

void Program::let_go_of_views() {
  attach_view = nullptr;
  form3_view_ = nullptr;
}

Window* Program::find_window(std::string_view name) const {
  if (form7_ != nullptr && same_name(form7_->name(), name)) return form7_.get();
  if (form3_ != nullptr && same_name(form3_->name(), name)) return form3_.get();
  return windows.find(name);
}

bool Program::has_window(std::string_view name) {
  return std::any_of(kWindows.begin(), kWindows.end(),
                     [name](std::string_view window) { return same_name(window, name); });
}

}  // namespace quillvane
