// Each control and field is stated once, at its declaration: the window has what is declared, and
// docs/names.md says the same of it.
#include "tests/architecture/declared_names.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <initializer_list>
#include <iterator>
#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "dialogs/about_window.h"
#include "dialogs/custom_dialog.h"
#include "dialogs/custom_entry_dialog.h"
#include "dialogs/ignore_dialog.h"
#include "dialogs/type_dialog.h"
#include "shortcuts/form3.h"
#include "tests/support/scan_fixture.h"

namespace quillvane {
namespace {

using Names = std::set<std::string>;

std::string text_of(const std::filesystem::path& path) {
  std::ifstream file(path);
  return {std::istreambuf_iterator<char>(file), {}};
}

// By the window that has them. What no header of a small window declares is the main window's, or
// the shortcut window's where it lies in that one's folder.
std::map<std::string, std::vector<DeclaredName>> all_declared() {
  const std::map<std::string, std::string> small_windows = {{"ignore_dialog.h", "Form1"},
                                                            {"custom_dialog.h", "Form2"},
                                                            {"type_dialog.h", "Form4"},
                                                            {"custom_entry_dialog.h", "Form5"},
                                                            {"about_window.h", "frmabout"}};
  std::map<std::string, std::vector<DeclaredName>> all;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(QUILLVANE_SOURCES)) {
    if (entry.path().extension() != ".h") continue;
    const auto window = small_windows.find(entry.path().filename());
    const bool of_shortcuts = entry.path().parent_path().filename() == "shortcuts";
    const std::string other = of_shortcuts ? "Form3" : "Form7";
    auto& names = all[window == small_windows.end() ? other : window->second];
    auto declared = declared_names(text_of(entry.path()));
    // The language panel is in both windows.
    if (entry.path().parent_path().filename() == "lang")
      std::ranges::copy(declared, std::back_inserter(all["Form3"]));
    std::ranges::move(declared, std::back_inserter(names));
  }
  return all;
}

TEST(DeclaredNames, AreReadFromALineOrFromTwo) {
  const auto names = declared_names(
      "  Label Label12_0{*this, \"Label12(0)\"};  // the current year\n"
      "  Field<int> selnode{window, \"selnode\"};\n"
      "  // the table of types\n  ListView View101{\n      window, \"View101\", {\"A\", "
      "\"B\"}};\n");
  ASSERT_EQ(names.size(), 3U);
  EXPECT_EQ(names[0].member, "Label12_0");
  EXPECT_EQ(names[0].name, "Label12(0)");
  EXPECT_EQ(names[0].meaning, "the current year");
  EXPECT_FALSE(names[0].is_field());
  EXPECT_TRUE(names[1].is_field());
  EXPECT_EQ(names[1].meaning, "");
  EXPECT_EQ(names[2].member, "View101");
  EXPECT_EQ(names[2].meaning, "the table of types");
}

TEST(DeclaredNames, AreTheMembersNamesWithTheirIndexInParentheses) {
  const std::regex index(R"(\((\d+)\)$)");
  for (const auto& [window, names] : all_declared()) {
    for (const DeclaredName& declared : names) {
      EXPECT_EQ(std::regex_replace(declared.name, index, "_$1"), declared.member) << window;
      EXPECT_NE(declared.meaning, "") << window << '.' << declared.name;
    }
  }
}

TEST(DeclaredNames, AreTheControlsThatTheWindowsHave) {
  ScanFixture fixture;
  Form7& form = fixture.start();
  Session& session = fixture.program->session;
  Form2 list(session, fixture.program->windows, form.Text14);
  Form5 entry(session, list, form.Text14);
  Form1 ignored(session, form.Text14);
  Form4 type(session, form.View101, form.Text12, form.view1);
  frmabout about(session);
  const Form3& shortcuts = fixture.program->load_shortcut_window();
  const auto declared = all_declared();
  for (const Window* window : std::initializer_list<const Window*>{&form, &shortcuts, &list, &type,
                                                                   &entry, &ignored, &about}) {
    Names controls;
    for (const Control* control : window->controls()) controls.insert(control->name());
    Names told;
    for (const DeclaredName& name : declared.at(window->name())) {
      if (name.is_field()) {
        EXPECT_TRUE(window->field(name.name).has_value()) << name.name;
      } else {
        EXPECT_TRUE(told.insert(name.name).second) << name.name << " is declared twice";
      }
    }
    EXPECT_EQ(told, controls) << window->name();
  }
}

// "| `cmd_start` | starts a scan |" below "## Controls of `Form7`".
std::map<std::string, Names> rows_of_names_page() {
  std::map<std::string, Names> rows;
  std::istringstream page(text_of(QUILLVANE_NAMES_PAGE));
  std::string section;
  for (std::string line; std::getline(page, line);) {
    if (line.starts_with("## ")) section = line.substr(3);
    if (line.starts_with("| `")) rows[section].insert(line);
  }
  return rows;
}

TEST(NamesPage, SaysOfEachControlAndFieldWhatItsDeclarationSays) {
  auto told = rows_of_names_page();
  for (const auto& [window, names] : all_declared()) {
    Names controls;
    Names fields;
    for (const DeclaredName& declared : names) {
      const std::string row = "| `" + declared.name + "` | " + declared.meaning + " |";
      (declared.is_field() ? fields : controls).insert(row);
    }
    EXPECT_EQ(told["Controls of `" + window + "`"], controls) << window;
    EXPECT_EQ(told["Fields of `" + window + "`"], fields) << window;
  }
}

}  // namespace
}  // namespace quillvane
