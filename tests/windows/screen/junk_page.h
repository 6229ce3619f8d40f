// The junk page on the screen and what a user does with it.
#pragma once

#include <gtest/gtest.h>
#include <windows.h>

#include <memory>
#include <string>

#include "tests/windows/screen/hand.h"
#include "tests/windows/screen/planted_junk.h"
#include "tests/windows/screen/program_on_screen.h"

namespace quillvane {

// The tests of a suite share one program, since to start it takes longer than most of them.
class JunkPage : public testing::Test {
 public:
  static void SetUpTestSuite();
  static void TearDownTestSuite();

 protected:
  [[nodiscard]] HWND category_list() const { return program_.control("Files of the category"); }
  [[nodiscard]] HWND whole_list() const { return program_.control("All files found"); }
  [[nodiscard]] std::string summary() const { return program_.text_beginning("Junk files found"); }
  [[nodiscard]] bool is_at_work() const {
    return IsWindowVisible(program_.control("At work")) != 0;
  }

  // Clicks "Start" and waits for the end of the scan.
  void scan() const;
  // Scans, if no test before has done so; otherwise takes back what that one did to the result.
  void have_result() const;
  // Waits for the end of a scan that goes on.
  void await_end_of_scan() const;
  // Brings the list of all files to the front.
  void choose_all_files() const;
  void choose_tab(int number, HWND list) const;  // from 0; the list that it shows

 private:
  static inline std::unique_ptr<PlantedJunk> shared_junk_;
  static inline std::unique_ptr<ProgramOnScreen> shared_program_;

 protected:
  const PlantedJunk& junk_ = *shared_junk_;
  const ProgramOnScreen& program_ = *shared_program_;
};

}  // namespace quillvane
