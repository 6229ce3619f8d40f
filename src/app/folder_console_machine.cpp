#include "app/folder_console_machine.h"

#include <utility>

namespace quillvane {

FolderConsoleMachine::FolderConsoleMachine(std::unique_ptr<FolderMachine> machine)
    : machine_(std::move(machine)), dialogs_(machine_->effects()) {}

ConsoleMachine::Problem FolderConsoleMachine::set_environment(const std::string& name,
                                                              const std::string& value) {
  machine_->set_environment(name, value);
  return std::nullopt;
}

ConsoleMachine::Problem FolderConsoleMachine::add_process(std::uint32_t id,
                                                          const std::string& name) {
  machine_->add_process(id, name);
  return std::nullopt;
}

ConsoleMachine::Problem FolderConsoleMachine::add_in_use(const std::string& path) {
  machine_->add_in_use(path);
  return std::nullopt;
}

ConsoleMachine::Problem FolderConsoleMachine::add_denied(const std::string& folder) {
  machine_->add_denied(folder);
  return std::nullopt;
}

ConsoleMachine::Problem FolderConsoleMachine::add_url_cache_entry(const std::string& url,
                                                                  const std::string& file) {
  machine_->add_url_cache_entry({url, file, std::nullopt, ""});
  return std::nullopt;
}

ConsoleMachine::Problem FolderConsoleMachine::add_window(const std::string& title) {
  machine_->add_window(title);
  return std::nullopt;
}

}  // namespace quillvane
