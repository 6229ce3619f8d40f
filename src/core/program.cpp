#include "core/program.h"

#include <algorithm>
#include <array>

#include "core/form7.h"
#include "platform/unicode_case.h"
#include "support/event_log.h"

namespace quillvane {

namespace {

constexpr std::array<std::string_view, 5> kWindows = {"Form7", "Form1", "Form2", "Form5",
                                                      "frmabout"};

constexpr std::string_view kProblemEvent = "5001";

}  // namespace

Program::Program(const Platform& machine)
    : platform(machine), trail(platform.event_log, kProgramName) {}

Program::~Program() = default;

void Program::start(std::string_view command_line) {
  form7_ = std::make_unique<Form7>(*this);
  form7_->initialize(command_line);
  form7_->load();
  if (ended_ || !form7_->shown_at_start()) return;
  form7_->show();
  form7_->activate();
}

void Program::warn(const std::string& what_and_why) {
  if (warnings_.insert(what_and_why).second && on_warning) on_warning(what_and_why);
}

void Program::PumpWait(std::chrono::milliseconds time) {
  if (!ended_) platform.loop.wait(time);
}

void Program::show_modal(ModalWindow& window) {
  modal_windows_.push_back(&window);
  {
    const auto view = attach_view ? attach_view(window) : nullptr;
    window.show();
    platform.loop.serve_until([&] { return window.unloaded() || ended_; });
  }
  std::erase(modal_windows_, &window);
  if (!window.unloaded() && !ended_) stop();
}

Window* Program::find_window(std::string_view name) const {
  if (form7_ != nullptr && same_name(form7_->name(), name)) return form7_.get();
  const auto found =
      std::find_if(modal_windows_.begin(), modal_windows_.end(),
                   [name](const ModalWindow* window) { return same_name(window->name(), name); });
  return found == modal_windows_.end() ? nullptr : *found;
}

bool Program::has_window(std::string_view name) {
  return std::any_of(kWindows.begin(), kWindows.end(),
                     [name](std::string_view window) { return same_name(window, name); });
}

void Program::tell_problem(std::string_view what, std::string_view why) {
  if (on_problem) {
    on_problem(what, why);
    return;
  }
  const std::string text = std::string(what) + ": " + std::string(why);
  // A log that takes no entry is no reason to stop.
  static_cast<void>(EventLog(platform.event_log)
                        .WriteEvent(text, kProgramName, kProblemEvent, EventLog::kWarning));
}

std::string Program::data_file(std::string_view name) const {
  return platform.system.program_folder() + "\\" + std::string(name);
}

}  // namespace quillvane
