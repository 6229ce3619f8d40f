#include "core/program.h"

#include <algorithm>
#include <array>

#include "core/form7.h"
#include "platform/unicode_case.h"

namespace quillvane {

namespace {

constexpr std::array<std::string_view, 6> kWindows = {"Form7", "Form1", "Form2",
                                                      "Form4", "Form5", "frmabout"};

}  // namespace

Program::Program(const Platform& platform) : session(platform), windows(session) {}

Program::~Program() = default;

void Program::start(std::string_view command_line) {
  form7_ = std::make_unique<Form7>(session, windows);
  form7_->initialize(command_line);
  form7_->load();
  if (session.ended() || !session.shown_at_start) return;
  form7_->show();
  form7_->activate();
}

Window* Program::find_window(std::string_view name) const {
  if (form7_ != nullptr && same_name(form7_->name(), name)) return form7_.get();
  return windows.find(name);
}

bool Program::has_window(std::string_view name) {
  return std::any_of(kWindows.begin(), kWindows.end(),
                     [name](std::string_view window) { return same_name(window, name); });
}

}  // namespace quillvane
