// A scan of the demonstration machine finds junk in each category and leaves the rest alone.
#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <utility>
#include <variant>

#include "core/form7.h"
#include "core/program.h"
#include "machine/create_machine.h"
#include "machine/demo_files.h"
#include "machine/demo_machine.h"
#include "platform/folder/folder_machine.h"
#include "platform/unicode_case.h"
#include "platform/virtual/queued_dialogs.h"
#include "tests/support/temp_folder.h"
#include "tests/support/told_browsers.h"

namespace quillvane {
namespace {

// The window after a scan of a demonstration machine, which all tests look at.
class DemoScan : public testing::Test {
 protected:
  static void SetUpTestSuite() {
    folder_ = std::make_unique<TempFolder>();
    ASSERT_EQ(create_machine(folder_->path()), std::nullopt);
    ASSERT_EQ(fill_demo_machine(folder_->path()), std::nullopt);
    auto opened = FolderMachine::open(folder_->path());
    ASSERT_TRUE(std::holds_alternative<std::unique_ptr<FolderMachine>>(opened));
    machine_ = std::get<std::unique_ptr<FolderMachine>>(std::move(opened));
    dialogs_ = std::make_unique<QueuedDialogs>(machine_->effects());
    program_ = std::make_unique<Program>(machine_->platform(*dialogs_));
    program_->start("");
    form().cmd_start.click();
  }
  static void TearDownTestSuite() {
    program_.reset();
    dialogs_.reset();
    machine_.reset();
    folder_.reset();
  }

  static Form7& form() { return program_->main_window(); }

  static std::set<std::string> listed_paths() {
    std::set<std::string> paths;
    for (int row = 1; row <= form().view1.count(); ++row) {
      paths.insert(lower_case(form().view1.text(row)));
    }
    return paths;
  }

  static std::set<std::string> paths_of(std::span<const DemoFiles> rows,
                                        const std::string& root = {}) {
    std::set<std::string> paths;
    for (const DemoFiles& row : rows) {
      for (const DemoFile& file : expand_demo_files(row, root)) paths.insert(lower_case(file.path));
    }
    return paths;
  }

  static std::unique_ptr<TempFolder> folder_;
  static std::unique_ptr<FolderMachine> machine_;
  static std::unique_ptr<QueuedDialogs> dialogs_;
  static std::unique_ptr<Program> program_;
};

std::unique_ptr<TempFolder> DemoScan::folder_;
std::unique_ptr<FolderMachine> DemoScan::machine_;
std::unique_ptr<QueuedDialogs> DemoScan::dialogs_;
std::unique_ptr<Program> DemoScan::program_;

struct Expected {
  int node;
  const char* begin;  // of its caption: name and count
};

// Counted from the tables; some files come up twice: the font caches, the logs of the first place,
// what Chrome keeps for both of its profiles, the jump lists of Torch, Maxthon and Yandex.
constexpr Expected kCategories[] = {
    {2, "System Temporary ( 31 files, "},
    {3, "User Temporary ( 38 files, "},
    {4, "Thumbnail cache ( 9 files, "},
    {5, "Memory Dump Files ( 1 file, 418 MB )"},
    {6, "Error Report Files ( 10 files, "},
    {7, "Log Files ( 45 files, "},
    {8, "Recycle Bin ( 14 files, "},
    {9, "Downloaded Programs ( 3 files, "},
    {10, "Windows Updates & installer ( 16 files, "},
    {11, "Windows History ( 13 files, "},
    {13, "Internet Explorer ( 13 files, "},
    {14, "Mozila Firefox Cache ( 27 files, "},
    {15, "Google Chrome Cache ( 43 files, "},
    {16, "Opera Cache ( 23 files, "},
    {17, "Microsoft Edge ( 28 files, "},
    {18, "Brave Browser ( 24 files, "},
    {19, "Vivaldi Browser ( 28 files, "},
    {20, "Torch Browser ( 29 files, "},
    {21, "Maxthon Browser ( 29 files, "},
    {22, "Yandex Browser ( 33 files, "},
    {23, "UC Browser ( 12 files, "},
};

TEST_F(DemoScan, FindsJunkInEachCategory) {
  for (const Expected& each : kCategories) {
    const std::string begin = each.begin;
    EXPECT_EQ(form().Tv1.node(each.node).text.substr(0, begin.size()), begin);
  }
}

// Files that a walk of the disk finds for one row.
std::uint32_t count_files(const ListedFolder& folder) {
  std::uint32_t count = folder.file_count();
  for (const auto* sub = folder.first_subfolder(); sub != nullptr; sub = sub->next_sibling()) {
    count += count_files(*sub);
  }
  return count;
}

bool finds_something(const FileSystem& files, const std::string& folder, const char* pattern) {
  const auto tree = files.read_tree(folder, pattern);
  return tree != nullptr && count_files(tree->root()) > 0;
}

TEST_F(DemoScan, EachRowOfTheChromiumBrowsersFindsSomething) {
  const FileSystem& files = program_->session.platform.files;
  for (const ToldBrowser& browser : told_browsers()) {
    for (const ToldRow& row : browser.rows) {
      std::string folder = place_of(browser) + (row.base == 'R' ? "" : "\\Default") + row.suffix;
      if (row.base == 'X') {
        folder += "\\" + files.list_folder(folder, "*.*").at(0).name + "\\def\\GPUCache";
      }
      EXPECT_TRUE(finds_something(files, folder, row.pattern)) << folder << " " << row.pattern;
    }
  }
}

TEST_F(DemoScan, EachRowOfTheOtherBrowsersFindsSomething) {
  struct Row {
    const char* folder;  // below the user's
    const char* pattern;
  };
  constexpr Row kRows[] = {
      {"AppData\\Local\\Microsoft\\Windows\\Temporary Internet Files", "*.*"},
      {"AppData\\Local\\Microsoft\\Feeds Cache", "*.*"},
      {"AppData\\Local\\Mozilla\\Firefox\\Profiles\\x7k2m9qa.default-release\\cache2", "*.*"},
      {"AppData\\Roaming\\Mozilla\\Firefox\\Profiles\\x7k2m9qa.default-release\\cache2", "*.*"},
      {"AppData\\Local\\Mozilla\\Firefox\\Profiles\\x7k2m9qa.default-release\\thumbnails", "*.*"},
      {"AppData\\Roaming\\Mozilla\\Firefox\\Profiles\\x7k2m9qa.default-release", "places.sqlite.*"},
      {"AppData\\Roaming\\Mozilla\\Firefox\\Profiles\\x7k2m9qa.default-release",
       "sessionCheckpoints.json"},
      {"AppData\\Roaming\\Mozilla\\Firefox\\Profiles\\x7k2m9qa.default-release",
       "sessionstore.jsonlz4"},
      {"AppData\\Local\\Mozilla\\Firefox\\Profiles\\x7k2m9qa.default-release\\startupCache", "*.*"},
      {"AppData\\Local\\Mozilla\\Firefox\\Profiles\\x7k2m9qa.default-release\\jumpListCache",
       "*.*"},
      {"Local Settings\\Opera Software\\Opera Stable\\Cache", "*.*"},
      {"AppData\\Roaming\\Opera Software\\Opera Stable", "*-journal.*"},
      {"AppData\\Roaming\\Opera Software\\Opera Stable", "*.tmp"},
      {"AppData\\Roaming\\Opera Software\\Opera Stable\\GPUCache", "*.*"},
      {"AppData\\Roaming\\Opera Software\\Opera Stable\\ShaderCache\\GPUCache", "*.*"},
      {"AppData\\Roaming\\Opera Software\\Opera Stable\\Service Worker\\CacheStorage", "*.*"},
      {"AppData\\Roaming\\Opera Software\\Opera Stable\\Service Worker\\ScriptCache", "*.*"},
      {"AppData\\Roaming\\Opera Software\\Opera Stable\\Service Worker\\Database", "*.*"},
      {"AppData\\Roaming\\Opera Software\\Opera Stable\\Service Worker\\Origins", "*.*"},
      {"AppData\\Roaming\\Opera Software\\Opera Stable\\file System", "*.*"},
      {"AppData\\Local\\UCBrowser\\", "*.tmp"},
      {"AppData\\Local\\UCBrowser\\", "*-journal.*"},
      {"AppData\\Local\\UCBrowser\\User Data\\Default\\Cache", "*.*"},
      {"AppData\\Local\\UCBrowser\\User Data_i18n\\Default\\Cache", "*.*"},
  };
  for (const Row& row : kRows) {
    EXPECT_TRUE(finds_something(program_->session.platform.files,
                                std::string("C:\\Users\\User\\") + row.folder, row.pattern))
        << row.folder << " " << row.pattern;
  }
}

TEST_F(DemoScan, HasACustomEntryInTheTree) {
  ASSERT_GE(form().Tv1.count(), 25);
  EXPECT_EQ(form().Tv1.node(25).text.substr(0, 11), "Old backups");
}

TEST_F(DemoScan, LeavesTheOtherFilesAlone) {
  const std::set<std::string> listed = listed_paths();
  for (const std::string& path : paths_of(demo_files_left_alone())) {
    EXPECT_FALSE(listed.contains(path)) << path;
  }
  for (const DemoBrowser& browser : demo_browsers()) {
    for (const std::string& path : paths_of(demo_files_left_alone_in_each_browser(),
                                            std::string("C:\\Users\\User") + browser.folder)) {
      EXPECT_FALSE(listed.contains(path)) << path;
    }
  }
}

TEST_F(DemoScan, LeavesTheBookmarksOfChrome) {
  const std::string bookmarks =
      "C:\\Users\\User\\AppData\\Local\\Google\\Chrome\\User Data\\Default\\Bookmarks";
  EXPECT_TRUE(program_->session.platform.files.file_size(bookmarks).has_value());
  EXPECT_FALSE(listed_paths().contains(lower_case(bookmarks)));
}

TEST_F(DemoScan, AsksNothing) { EXPECT_TRUE(dialogs_->take_boxes().empty()); }

}  // namespace
}  // namespace quillvane
