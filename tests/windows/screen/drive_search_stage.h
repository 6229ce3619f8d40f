// The drive search on the screen: the program in a folder of its own, with a table of file types
// that match nothing but what the test has planted.
#pragma once

#include <gtest/gtest.h>
#include <windows.h>

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

#include "tests/windows/screen/copied_program.h"
#include "tests/windows/screen/hand.h"
#include "tests/windows/screen/program_on_screen.h"

namespace quillvane {

// A record of the table of file types.
[[nodiscard]] std::string type_record(std::string_view description, std::string_view pattern,
                                      bool is_on);

class DriveSearchStage : public testing::Test {
 protected:
  DriveSearchStage();
  ~DriveSearchStage() override;

  // Chooses the tab of the drive search.
  void open_drive_search() const;
  // Clicks the way to a page and waits until a control of the page shows.
  void go(const char* way, const char* shown) const;
  [[nodiscard]] bool shows(const char* control) const {
    return IsWindowVisible(program().control(control)) != 0;
  }
  // Clicks the box before a row until it stands so, at least once. Drives keep their ticks from run
  // to run.
  void tick(HWND list, int row, bool on) const;

  [[nodiscard]] const ProgramOnScreen& program() const { return *program_; }
  [[nodiscard]] const CopiedProgram& copy() const { return copy_; }

 private:
  void flip(HWND list, int row) const;

  std::filesystem::path folder_ = "C:\\qv-drive";
  const CopiedProgram copy_;
  std::unique_ptr<ProgramOnScreen> program_;
};

}  // namespace quillvane
