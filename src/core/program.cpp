#include "core/program.h"

#include "core/form7.h"
#include "platform/unicode_case.h"

namespace quillvane {

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

void Program::PumpWait(std::chrono::milliseconds time) {
  if (!ended_) platform.loop.wait(time);
}

Window* Program::find_window(std::string_view name) const {
  if (form7_ != nullptr && same_name(form7_->name(), name)) return form7_.get();
  return nullptr;
}

std::string Program::data_file(std::string_view name) const {
  return platform.system.program_folder() + "\\" + std::string(name);
}

}  // namespace quillvane
