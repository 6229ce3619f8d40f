// The program on a machine with lists for the drive search: file types, folders to take in and to
// leave out, the user's own entries.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "tests/support/scan_fixture.h"

namespace quillvane {

inline constexpr std::string_view kTwoDrives = R"({"drives": [{"letter": "C"}, {"letter": "D"}]})";

struct SearchFixture : ScanFixture {
  using ScanFixture::ScanFixture;

  struct Type {
    std::string description;
    std::string pattern;
    bool on;
  };

  void add_types(const std::vector<Type>& types) {
    std::string table;
    for (const Type& type : types) {
      table += field(type.description, 50) + field(type.pattern, 50) + (type.on ? "1" : "0");
    }
    add_program_file("tmptype.txt", table);
  }
  void include(const std::vector<std::string>& folders) {
    add_folders("incfolder.orv", folders, '1');
  }
  void exclude(const std::vector<std::string>& folders) {
    add_folders("exfolder.orv", folders, '9');
  }
  void exclude_files(const std::vector<std::string>& files) {
    add_folders("exfolder.orv", files, '1');
  }
  // Lines of custom.tdw.
  void add_entries(const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines) text += line + "\r\n";
    add_program_file("custom.tdw", text);
  }

  // The user's window with these rows of View2 ticked.
  Form7& start_with_drives(const std::vector<int>& drives) {
    Form7& form = start();
    for (const int row : drives) form.View2.tick_row(row, true);
    return form;
  }

 private:
  static std::string field(std::string text, std::size_t width) {
    text.resize(width, ' ');
    return text;
  }
  void add_folders(const std::string& name, const std::vector<std::string>& folders, char flag) {
    std::string list;
    for (const std::string& folder : folders) {
      list += field(folder, 150) + field("Test", 250) + flag;
    }
    add_program_file(name, list);
  }
};

}  // namespace quillvane
