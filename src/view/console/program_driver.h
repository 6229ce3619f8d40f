// The real program under a script.
#pragma once

#include "core/program.h"
#include "view/console/script/driven_program.h"

namespace quillvane {

class ProgramDriver final : public DrivenProgram {
 public:
  // What `platform` refers to must outlive it.
  explicit ProgramDriver(const Platform& platform) : program_(platform) {}

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
