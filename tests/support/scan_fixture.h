// The program on a machine of a test's own: stage files, start it, act on its window, look at rows.
//
//   ScanFixture fixture;
//   fixture.machine.add_file("C:\\Windows\\Temp\\a.tmp", 120);
//   Form7& form = fixture.start();
//   form.cmd_start.click();
//   EXPECT_EQ(rows(form.view1), (Texts{"C:\\Windows\\Temp\\a.tmp"}));
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/form7.h"
#include "core/program.h"
#include "scan/hit_rows.h"
#include "tests/support/temp_machine.h"

namespace quillvane {

using Texts = std::vector<std::string>;

inline const std::string kProgramFolder = "C:\\Program Files\\Tidewrack";

struct ScanFixture {
  explicit ScanFixture(std::string_view machine_json = {}) : machine(machine_json) {
    machine.add_folder(kProgramFolder);
  }

  // Starts the program with this command line; the window without one is the user's.
  Form7& start(std::string_view command_line = {}) {
    program.emplace(machine.platform());
    program->start(command_line);
    return program->main_window();
  }

  // A file beside the program's executable.
  void add_program_file(const std::string& name, std::string_view content) {
    machine.add_text_file(kProgramFolder + "\\" + name, content);
  }
  [[nodiscard]] std::optional<std::string> program_file(const std::string& name) {
    return machine.file_text(kProgramFolder + "\\" + name);
  }

  // Calls `act` when the message loop is served for the `number`th time from now, and only then.
  void at_serving(int number, std::function<void()> act) {
    machine.loop().set_served_hook([number, act = std::move(act), served = 0]() mutable {
      if (++served == number) act();
    });
  }

  // Calls `act` once, when the message loop is served and `holds` answers true for the first time.
  void when(std::function<bool()> holds, std::function<void()> act) {
    machine.loop().set_served_hook(
        [holds = std::move(holds), act = std::move(act), done = false]() mutable {
          if (done || !holds()) return;
          done = true;
          act();
        });
  }

  TempMachine machine;
  std::optional<Program> program;
};

// A machine with one file of 10 bytes for each category that lists files on every Windows, and for
// Internet Explorer; `junk` names them in the order in which a scan finds them.
//
// A whole scan finds 10 files and counts 11: the memory dumps add the thumbnails a second time.
struct JunkEverywhere : ScanFixture {
  JunkEverywhere() {
    for (const std::string& path : junk) machine.add_file(path, 10);
  }

  const Texts junk = {
      "C:\\Windows\\Temp\\a.tmp",
      "C:\\Users\\User\\AppData\\Local\\Temp\\b.tmp",
      "C:\\Users\\User\\AppData\\Local\\Microsoft\\Windows\\Explorer\\c.db",
      "C:\\ProgramData\\Microsoft\\Windows\\WER\\ReportQueue\\d.wer",
      "C:\\Windows\\Logs\\e.log",
      "C:\\$RECYCLE.BIN\\f.txt",
      "C:\\Windows\\Downloaded Program Files\\g.dll",
      "C:\\Windows\\SoftwareDistribution\\Download\\h.cab",
      "C:\\Users\\User\\AppData\\Roaming\\microsoft\\windows\\recent\\i.lnk",
      "C:\\Users\\User\\AppData\\Local\\Microsoft\\Windows\\Temporary Internet Files\\j.htm",
  };
};

// The texts of a list's rows; of a column, when one is given.
inline Texts rows(const ListView& list, int column = 0) {
  Texts texts;
  for (int row = 1; row <= list.count(); ++row) texts.push_back(list.sub_item(row, column));
  return texts;
}

// The rows of one category.
inline Texts rows_of(const ListView& list, int category) {
  Texts texts;
  for (int row = 1; row <= list.count(); ++row) {
    if (list.sub_item_number(row, kCategoryColumn) == category) texts.push_back(list.text(row));
  }
  return texts;
}

// The numbers of the rows or nodes that are ticked.
inline std::vector<int> ticked(const ListView& list) {
  std::vector<int> numbers;
  for (int row = 1; row <= list.count(); ++row) {
    if (list.checked(row)) numbers.push_back(row);
  }
  return numbers;
}
inline std::vector<int> ticked(const TreeView& tree) {
  std::vector<int> numbers;
  for (int node = 1; node <= tree.count(); ++node) {
    if (tree.node(node).checked) numbers.push_back(node);
  }
  return numbers;
}

// Adds a row of a category that no walk has found.
inline void add_hit(ListView& list, const std::string& path, int category) {
  const int row = list.add(path);
  list.set_sub_item(row, kSizeColumn, "1 KB");
  list.set_sub_item(row, kCategoryColumn, std::to_string(category));
}

// The numbers from `first` to `last`.
inline std::vector<int> numbers_from(int first, int last) {
  std::vector<int> numbers;
  for (int number = first; number <= last; ++number) numbers.push_back(number);
  return numbers;
}

}  // namespace quillvane
