// A machine folder as the console's machine.
#pragma once

#include <memory>

#include "platform/folder/folder_machine.h"
#include "view/console/console_machine.h"

namespace quillvane {

class FolderConsoleMachine final : public ConsoleMachine {
 public:
  explicit FolderConsoleMachine(std::unique_ptr<FolderMachine> machine);

  [[nodiscard]] Platform platform() override { return machine_->platform(dialogs_); }
  [[nodiscard]] VirtualLoop& loop() override { return machine_->loop(); }
  [[nodiscard]] QueuedDialogs& dialogs() override { return dialogs_; }
  [[nodiscard]] EffectLog& effects() override { return machine_->effects(); }
  [[nodiscard]] std::unique_ptr<Registry> another_registry() override {
    return machine_->another_registry();
  }

  [[nodiscard]] Problem set_environment(const std::string& name, const std::string& value) override;
  [[nodiscard]] Problem add_process(std::uint32_t id, const std::string& name) override;
  [[nodiscard]] Problem add_in_use(const std::string& path) override;
  [[nodiscard]] Problem add_denied(const std::string& folder) override;
  [[nodiscard]] Problem add_url_cache_entry(const std::string& url,
                                            const std::string& file) override;
  [[nodiscard]] Problem add_window(const std::string& title) override;

 private:
  std::unique_ptr<FolderMachine> machine_;
  QueuedDialogs dialogs_;
};

}  // namespace quillvane
