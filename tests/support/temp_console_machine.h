// A temporary machine folder as the console's machine. Copies share the folder.
#pragma once

#include <functional>
#include <memory>

#include "tests/support/temp_machine.h"
#include "view/console/console_machine.h"

namespace quillvane {

class TempConsoleMachine final : public ConsoleMachine {
 public:
  [[nodiscard]] TempMachine& temp() { return *temp_; }

  // What stands between the program and the machine; nothing without it.
  std::function<Platform(const Platform& machine)> wrap;

  [[nodiscard]] Platform platform() override {
    return wrap ? wrap(temp_->platform()) : temp_->platform();
  }
  [[nodiscard]] VirtualLoop& loop() override { return temp_->loop(); }
  [[nodiscard]] QueuedDialogs& dialogs() override { return temp_->dialogs(); }
  [[nodiscard]] EffectLog& effects() override { return temp_->effects(); }
  [[nodiscard]] std::unique_ptr<Registry> another_registry() override {
    return temp_->machine().another_registry();
  }

  [[nodiscard]] Problem set_environment(const std::string& name,
                                        const std::string& value) override {
    temp_->machine().set_environment(name, value);
    return std::nullopt;
  }
  [[nodiscard]] Problem add_process(std::uint32_t id, const std::string& name) override {
    temp_->machine().add_process(id, name);
    return std::nullopt;
  }
  [[nodiscard]] Problem add_in_use(const std::string& path) override {
    temp_->machine().add_in_use(path);
    return std::nullopt;
  }
  [[nodiscard]] Problem add_denied(const std::string& folder) override {
    temp_->machine().add_denied(folder);
    return std::nullopt;
  }
  [[nodiscard]] Problem add_url_cache_entry(const std::string& url,
                                            const std::string& file) override {
    temp_->machine().add_url_cache_entry({url, file, std::nullopt, ""});
    return std::nullopt;
  }
  [[nodiscard]] Problem add_window(const std::string& title) override {
    if (title.empty()) return "a window needs a title";
    temp_->machine().add_window(title);
    return std::nullopt;
  }

 private:
  std::shared_ptr<TempMachine> temp_ = std::make_shared<TempMachine>();
};

}  // namespace quillvane
