#include "tests/windows/screen/drive_search_stage.h"

#include <commctrl.h>

#include <fstream>
#include <memory>

namespace quillvane {

namespace {

constexpr std::size_t kFieldWidth = 50;

std::string field(std::string_view text) {
  std::string padded(text);
  padded.resize(kFieldWidth, ' ');
  return padded;
}

}  // namespace

std::string type_record(std::string_view description, std::string_view pattern, bool is_on) {
  return field(description) + field(pattern) + (is_on ? "1" : "0");
}

DriveSearchStage::DriveSearchStage() {
  std::filesystem::create_directories(folder_ / "sub");
  std::ofstream(folder_ / "one.qvbak") << "0123456789";
  std::ofstream(folder_ / "sub" / "two.qvbak") << "01234";
  std::ofstream(folder_ / "sub" / "three.qvlog") << "012";
  copy_.write("tmptype.txt", type_record("Backup files of the test", "*.qvbak", true) +
                                 type_record("Log files of the test", "*.qvlog", false) +
                                 type_record("file with zero size", "*.*", false));
  program_ = std::make_unique<ProgramOnScreen>(copy_.executable().native());
}

DriveSearchStage::~DriveSearchStage() {
  program_ = nullptr;
  std::error_code in_use;
  std::filesystem::remove_all(folder_, in_use);
}

void DriveSearchStage::open_drive_search() const {
  program().click_tab(program().control("Jobs"), 1);
  ASSERT_TRUE(eventually("the drives", [this] { return shows("Drives"); }));
}

void DriveSearchStage::go(const char* way, const char* shown) const {
  program().click(way);
  ASSERT_TRUE(eventually(shown, [&] { return shows(shown); }));
}

// A box that stands right already is clicked twice: the program knows ticks of the user alone, and
// the one of a start that restored it from the registry is none.
void DriveSearchStage::tick(HWND list, int row, bool on) const {
  if (program().row_ticked(list, row) == on) flip(list, row);
  flip(list, row);
}

void DriveSearchStage::flip(HWND list, int row) const {
  const bool before = program().row_ticked(list, row);
  RECT edge{};
  GetWindowRect(list, &edge);
  click_at({edge.left + 12, middle(program().row_area(list, row)).y});
  ASSERT_TRUE(eventually("a tick", [&] { return program().row_ticked(list, row) != before; }));
}

}  // namespace quillvane
