#include "tests/architecture/include_rules.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace quillvane {
namespace {

struct Sample {
  const char* file;
  const char* line;
};

constexpr Sample kAllowed[] = {
    {"core/form7.cpp", "#include \"forms/window.h\""},
    {"core/form7.cpp", "#include \"platform/file_system.h\""},
    {"core/form7.cpp", "#include \"categories/routines.h\""},
    {"cleaning/run.cpp", "#include \"categories/routines.h\""},
    {"categories/place.cpp", "#include \"scan/junk_page.h\""},
    {"dialogs/about_window.h", "#include \"support/session.h\""},
    {"core/form7.cpp", "#include <string>"},
    {"core/form7_test.cpp", "#include \"tests/support/temp_machine.h\""},
    {"core/form7_test.cpp", "#include <gtest/gtest.h>"},
    {"forms/window.h", "#include \"support/text.h\""},
    {"platform/platform.h", "#include \"platform/drives.h\""},
    {"platform/win32/win32_drives.cpp", "#include <windows.h>"},
    {"platform/folder/folder_registry.cpp", "#include <sqlite3.h>"},
    {"platform/folder/win32/host_drive.cpp", "#include <windows.h>"},
    {"platform/folder/win32/host_drive.cpp", "#include \"platform/win32/system_handle.h\""},
    {"platform/folder/win32/host_drive.cpp", "#include \"platform/folder/machine_state.h\""},
    {"view/console/scan/report.cpp", "#include <nlohmann/json.hpp>"},
    {"view/console/scan/report.cpp", "#include \"core/form7.h\""},
    {"machine/create_machine.cpp", "#include \"platform/folder/machine_json.h\""},
    {"app/console_main.cpp", "#include \"view/console/commands/run.h\""},
    {"app/folder_host.cpp", "#include \"machine/create_machine.h\""},
    {"app/machine_win32.cpp", "#include \"platform/win32/win32_machine.h\""},
};

constexpr Sample kForbidden[] = {
    // Behaviour knows no view and no particular platform.
    {"core/form7.cpp", "#include \"view/console/console.h\""},
    {"core/form7.cpp", "#include \"view/win32/list_binding.h\""},
    {"core/form7.cpp", "#include \"platform/win32/win32_drives.h\""},
    {"core/form7.cpp", "#include \"platform/folder/folder_machine.h\""},
    {"core/form7.cpp", "#include \"platform/virtual/virtual_loop.h\""},
    {"core/form7.cpp", "#include \"app/terminal.h\""},
    {"categories/routines.cpp", "#include \"view/console/console.h\""},
    {"cleaning/run.h", "#include \"platform/win32/win32_drives.h\""},
    {"drivesearch/lists.h", "#include \"platform/folder/folder_machine.h\""},
    {"shortcuts/form3.cpp", "#include \"view/console/console.h\""},
    {"lang/language.cpp", "#include \"view/console/console.h\""},
    // Nor the system, nor a library.
    {"core/form7.cpp", "#include <windows.h>"},
    {"core/form7.cpp", "#include <unistd.h>"},
    {"support/text.cpp", "#include <sys/stat.h>"},
    {"forms/window.cpp", "#include <nlohmann/json.hpp>"},
    {"core/form7.cpp", "#ifdef _WIN32"},
    {"view/console/console.cpp", "#if defined(_WIN32)"},
    // Each row of the middle knows the rows below it alone.
    {"shortcuts/form3.cpp", "#include \"core/form7.h\""},
    {"cleaning/run.cpp", "#include \"core/form7.h\""},
    {"categories/place.cpp", "#include \"cleaning/run.h\""},
    {"drivesearch/lists.cpp", "#include \"categories/place.h\""},
    {"dialogs/ignore_dialog.cpp", "#include \"core/form7.h\""},
    {"dialogs/ignore_dialog.cpp", "#include \"drivesearch/drive_page.h\""},
    {"scan/walker.cpp", "#include \"dialogs/about_window.h\""},
    {"scan/walker.cpp", "#include \"categories/place.h\""},
    {"lang/language.cpp", "#include \"scan/junk_page.h\""},
    {"controls/chameleon_button.h", "#include \"lang/language.h\""},
    {"forms/window.h", "#include \"controls/chameleon_button.h\""},
    {"support/session.h", "#include \"forms/window.h\""},
    // Lower layers know nothing of the upper.
    {"support/text.h", "#include \"core/form7.h\""},
    {"support/text.h", "#include \"forms/window.h\""},
    {"forms/window.h", "#include \"core/form7.h\""},
    {"controls/chameleon_button.h", "#include \"core/form7.h\""},
    {"platform/platform.h", "#include \"support/text.h\""},
    {"platform/platform.h", "#include \"platform/folder/folder_machine.h\""},
    {"platform/folder/folder_machine.h", "#include \"core/form7.h\""},
    {"platform/folder/folder_machine.h", "#include \"platform/win32/win32_drives.h\""},
    {"platform/win32/win32_drives.h", "#include \"platform/folder/folder_machine.h\""},
    {"platform/folder/posix/drive_folder.cpp", "#include \"platform/win32/win32_drives.h\""},
    {"platform/folder/posix/drive_folder.cpp", "#include <windows.h>"},
    {"platform/virtual/virtual_loop.h", "#include \"platform/folder/folder_machine.h\""},
    {"view/console/console.h", "#include \"view/win32/list_binding.h\""},
    {"view/console/console.h", "#include \"platform/folder/folder_machine.h\""},
    {"view/console/console.h", "#include \"app/terminal.h\""},
    // The double that answers calls knows nothing of what machines are made of, nor does behaviour.
    {"platform/folder/folder_machine.cpp", "#include \"machine/demo_files.h\""},
    {"core/form7.cpp", "#include \"machine/create_machine.h\""},
    {"view/console/console.h", "#include \"machine/create_machine.h\""},
    {"machine/demo_machine.cpp", "#include \"forms/window.h\""},
    {"machine/demo_machine.cpp", "#include <unistd.h>"},
    // Windows' headers stay where Windows is.
    {"view/console/console.cpp", "#include <windows.h>"},
    {"platform/folder/host_file.cpp", "#include <windows.h>"},
    {"app/console_main.cpp", "#include <windows.h>"},
    {"core/form7_test.cpp", "#include <windows.h>"},
    // A folder that no layer is told for.
    {"utils/all.h", "#include <string>"},
};

TEST(IncludeRules, TheseLinesAreAllowed) {
  for (const auto& [file, line] : kAllowed) {
    EXPECT_EQ(broken_rules(file, line), std::vector<std::string>{}) << file << ": " << line;
  }
}

TEST(IncludeRules, EachOfTheseLinesBreaksARule) {
  for (const auto& [file, line] : kForbidden) {
    EXPECT_EQ(broken_rules(file, line).size(), 1U) << file << ": " << line;
  }
}

TEST(IncludeRules, EveryLineOfAFileIsLookedAt) {
  const std::string content =
      "// A comment.\n#include <string>\n#include <unistd.h>\n\n#include \"view/console/x.h\"";
  EXPECT_EQ(broken_rules("core/a.cpp", content).size(), 2U);
}

using Sources = std::map<std::string, std::string>;  // by their path from src/

Sources read_sources() {
  const std::filesystem::path root = QUILLVANE_SOURCES;
  Sources sources;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(root)) {
    const std::string extension = entry.path().extension();
    if (extension != ".h" && extension != ".cpp") continue;
    std::ifstream file(entry.path());
    sources[entry.path().lexically_relative(root).generic_string()] =
        std::string(std::istreambuf_iterator<char>(file), {});
  }
  return sources;
}

TEST(IncludeRules, TheSourcesKeepThem) {
  const Sources sources = read_sources();
  EXPECT_GT(sources.size(), 50U) << "not where they are looked for: " << QUILLVANE_SOURCES;
  for (const auto& [name, content] : sources) {
    for (const std::string& broken : broken_rules(name, content)) ADD_FAILURE() << broken;
  }
}

// "| `scan/` | `forms` `support` |" of the overview, for each folder that includes another.
std::set<std::string> arrows_of(const Sources& sources) {
  std::map<std::string, std::set<std::string>> used;
  for (const auto& [name, content] : sources) {
    if (name.ends_with("_test.cpp")) continue;
    for (const std::string_view header : own_includes(content)) {
      if (folder_of(header) == folder_of(name)) continue;
      used[std::string(folder_of(name))].emplace(folder_of(header));
    }
  }
  std::set<std::string> rows;
  std::size_t arrows = 0;
  for (const auto& [folder, others] : used) {
    std::string row = "| `" + folder + "/` |";
    for (const std::string& other : others) row += " `" + other + "`";
    rows.insert(row + " |");
    arrows += others.size();
  }
  rows.insert("| " + std::to_string(arrows) + " arrows | none of them up |");
  return rows;
}

TEST(Overview, DrawsTheArrowsBetweenTheFoldersAsTheSourcesHaveThem) {
  std::ifstream overview(QUILLVANE_OVERVIEW);
  std::set<std::string> told;
  for (std::string line; std::getline(overview, line);) {
    if (line.find("/` |") != std::string::npos || line.ends_with("none of them up |")) {
      told.insert(line);
    }
  }
  EXPECT_EQ(told, arrows_of(read_sources()));
}

}  // namespace
}  // namespace quillvane
