// The real program under a script.
#pragma once

#include <functional>
#include <string_view>
#include <utility>

#include "core/program.h"
#include "view/console/script/driven_program.h"

namespace quillvane {

class ProgramDriver final : public DrivenProgram {
 public:
  // What `platform` refers to must outlive it.
  explicit ProgramDriver(const Platform& platform) : program_(platform) {}

  // Where the program tells what it could not do.
  void set_problem_teller(std::function<void(std::string_view, std::string_view)> teller) {
    program_.on_problem = std::move(teller);
  }

  void start(const std::string& command_line) override;
  [[nodiscard]] bool started() const override { return started_; }
  [[nodiscard]] bool ended() const override { return program_.ended(); }
  void wait(std::chrono::milliseconds time) override;
  [[nodiscard]] Window* find_window(std::string_view name) const override;
  [[nodiscard]] bool has_window(std::string_view name) const override;

 private:
  Program program_;
  bool started_ = false;
};

}  // namespace quillvane
