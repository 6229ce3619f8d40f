// A machine folder with the drives C: and D:, for tests of its files. Host names are relative to
// the test's folder: "drive_c/Temp/a.tmp" is C:\Temp\a.tmp.
#pragma once

#include <gtest/gtest.h>
#include <sys/xattr.h>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/folder/machine_state.h"
#include "platform/folder/posix/folder_file_system.h"
#include "tests/support/temp_folder.h"

namespace quillvane {

using Names = std::vector<std::string>;

class DriveTest : public ::testing::Test {
 protected:
  DriveTest() {
    host.make_folder("drive_c");
    host.make_folder("drive_d");
    machine.drives = {{'C', DriveType::kFixed, host.path_of("drive_c"), {}, {}},
                      {'D', DriveType::kFixed, host.path_of("drive_d"), {}, {}}};
    machine.environment = {{"WinDir", "C:\\Windows"}};
  }

  [[nodiscard]] Names list(const std::string& folder, const std::string& pattern = "*.*") const {
    Names names;
    for (const FolderEntry& entry : files.list_folder(folder, pattern)) names.push_back(entry.name);
    return names;
  }

  // The files of a walk by their paths below its folder, those of subfolders first.
  [[nodiscard]] Names walk(const std::string& folder, const std::string& pattern = "*.*") const {
    return files_of(files.read_tree(folder, pattern));
  }
  [[nodiscard]] static Names files_of(const std::shared_ptr<const FolderTree>& tree) {
    Names names;
    if (tree == nullptr) return {"(no tree)"};
    add_files(tree->root(), "", names);
    return names;
  }

  void set_stored_attributes(std::string_view name, std::string_view text) const {
    EXPECT_EQ(setxattr(host.path_of(name).c_str(), "user.DOSATTRIB", text.data(), text.size(), 0),
              0);
  }
  [[nodiscard]] std::optional<std::string> stored_attributes(std::string_view name) const {
    char text[64];
    const ssize_t length =
        getxattr(host.path_of(name).c_str(), "user.DOSATTRIB", text, sizeof text);
    if (length < 0) return std::nullopt;
    return std::string(text, static_cast<std::size_t>(length));
  }

  TempFolder host;
  MachineState machine;
  FolderFileSystem files{machine, 1};

 private:
  static void add_files(const ListedFolder& folder, const std::string& path, Names& names) {
    for (const auto* sub = folder.first_subfolder(); sub != nullptr; sub = sub->next_sibling()) {
      EXPECT_EQ(sub->parent(), &folder);
      add_files(*sub, path + std::string(sub->name()) + "\\", names);
    }
    for (std::uint32_t i = 0; i < folder.file_count(); ++i) {
      names.push_back(path + std::string(folder.name_of(i)));
    }
  }
};

}  // namespace quillvane
