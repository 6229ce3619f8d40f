// A cleaning run on a large machine removes what it listed and changes nothing else.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <memory>
#include <random>
#include <set>
#include <string>
#include <variant>
#include <vector>

#include "core/form7.h"
#include "core/program.h"
#include "machine/create_machine.h"
#include "machine/demo_machine.h"
#include "platform/folder/folder_machine.h"
#include "platform/unicode_case.h"
#include "platform/virtual/queued_dialogs.h"
#include "tests/support/temp_folder.h"

namespace quillvane {
namespace {

namespace fs = std::filesystem;

// Size and text; of the few files that are large and empty but for their size, the beginning.
std::string content_of(const fs::path& path) {
  constexpr std::size_t kMost = 65536;
  std::string content(kMost, '\0');
  std::ifstream file(path, std::ios::binary);
  file.read(content.data(), static_cast<std::streamsize>(kMost));
  content.resize(static_cast<std::size_t>(file.gcount()));
  return std::to_string(fs::file_size(path)) + " " + content;
}

// Every file of the machine's drive C: by its Windows path in lower case, with its content.
std::map<std::string, std::string> files_of(const std::string& machine) {
  std::map<std::string, std::string> files;
  const fs::path drive = fs::path(machine) / "drive_c";
  for (const auto& entry : fs::recursive_directory_iterator(drive)) {
    if (!entry.is_regular_file()) continue;
    std::string path = "c:\\" + entry.path().lexically_relative(drive).string();
    std::replace(path.begin(), path.end(), '/', '\\');
    files[lower_case(path)] = content_of(entry.path());
  }
  return files;
}

// Rows that lead through the junction of older Windows name a file of AppData.
std::string without_junction(std::string path) {
  const std::string junction = "\\local settings\\";
  const std::size_t at = path.find(junction);
  if (at != std::string::npos) path.replace(at, junction.size(), "\\appdata\\local\\");
  return path;
}

// Thousands of files in all the folders there are, under names like those of junk.
void plant_neighbours(const TempFolder& host) {
  std::vector<fs::path> folders;
  for (const auto& entry : fs::recursive_directory_iterator(host.path_of("drive_c"))) {
    if (entry.is_directory()) folders.push_back(entry.path());
  }
  std::mt19937 random(7);
  const char* endings[] = {".tmp", ".log", ".txt", ".dat", ".db", ".bak", ".docx", "", ".msi"};
  for (int i = 0; i < 6000; ++i) {
    const fs::path& folder = folders[random() % folders.size()];
    std::ofstream(folder / ("neighbour" + std::to_string(i) + endings[random() % 9]))
        << "content " << random();
  }
}

}  // namespace

TEST(Bystanders, OfALargeMachineStayAsTheyAre) {
  TempFolder host;
  ASSERT_EQ(create_machine(host.path()), std::nullopt);
  ASSERT_EQ(fill_demo_machine(host.path()), std::nullopt);
  plant_neighbours(host);
  auto before = files_of(host.path());
  ASSERT_GT(before.size(), 6000U);

  auto opened = FolderMachine::open(host.path());
  ASSERT_TRUE(std::holds_alternative<std::unique_ptr<FolderMachine>>(opened));
  const auto machine = std::get<std::unique_ptr<FolderMachine>>(std::move(opened));
  QueuedDialogs dialogs(machine->effects());
  Program program(machine->platform(dialogs));
  program.start("");
  before = files_of(host.path());  // the first start has made the factory's types the user's
  Form7& form = program.main_window();
  form.cmd_start.click();
  std::set<std::string> rows;
  for (int row = 1; row <= form.view1.count(); ++row)
    rows.insert(without_junction(lower_case(form.view1.text(row))));
  ASSERT_GT(rows.size(), 500U);
  ASSERT_LT(rows.size(), before.size() - 500);
  form.orvbutton2.click();

  const auto after = files_of(host.path());
  int removed = 0;
  for (const auto& [path, content] : before) {
    const auto found = after.find(path);
    if (found != after.end()) {
      EXPECT_EQ(found->second, content) << path;
      continue;
    }
    ++removed;
    EXPECT_TRUE(rows.contains(path) || path.starts_with("c:\\$recycle.bin\\")) << path;
  }
  EXPECT_GT(removed, 500);
  for (const auto& [path, content] : after) EXPECT_TRUE(before.contains(path)) << path;
}

}  // namespace quillvane
