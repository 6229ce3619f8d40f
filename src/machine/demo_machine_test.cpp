#include "machine/demo_machine.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "machine/create_machine.h"
#include "machine/data_files.h"
#include "machine/demo_files.h"
#include "machine/demo_links.h"
#include "platform/folder/folder_machine.h"
#include "platform/folder/machine_files.h"
#include "platform/folder/registry_store.h"
#include "platform/multi_string.h"
#include "platform/virtual/queued_dialogs.h"
#include "tests/support/temp_folder.h"

namespace quillvane {
namespace {

namespace fs = std::filesystem;

// A demonstration machine, made once for all tests, which only look at it.
class DemoMachine : public testing::Test {
 protected:
  static void SetUpTestSuite() {
    folder_ = std::make_unique<TempFolder>();
    make(folder_->path());
    auto opened = FolderMachine::open(folder_->path());
    machine_ = std::get<std::unique_ptr<FolderMachine>>(std::move(opened));
  }
  static void TearDownTestSuite() {
    machine_.reset();
    folder_.reset();
  }

  static void make(const std::string& dir) {
    ASSERT_EQ(create_machine(dir), std::nullopt);
    ASSERT_EQ(fill_demo_machine(dir), std::nullopt);
  }

  static std::vector<DemoFile> expand(std::span<const DemoFiles> rows,
                                      const std::string& root = {}) {
    std::vector<DemoFile> all;
    for (const DemoFiles& row : rows) {
      const auto files = expand_demo_files(row, root);
      all.insert(all.end(), files.begin(), files.end());
    }
    return all;
  }

  // Length and last write of each file, by its name, on the drives of a machine folder.
  static std::map<std::string, std::string> listing(const std::string& dir) {
    std::map<std::string, std::string> files;
    for (const char* drive : {"drive_c", "drive_d"}) {
      for (const auto& entry : fs::recursive_directory_iterator(fs::path(dir) / drive)) {
        if (!entry.is_regular_file() || entry.is_symlink()) continue;
        files[entry.path().lexically_relative(dir).string()] =
            std::to_string(entry.file_size()) + " bytes at " +
            std::to_string(entry.last_write_time().time_since_epoch().count());
      }
    }
    return files;
  }

  static std::unique_ptr<TempFolder> folder_;
  static std::unique_ptr<FolderMachine> machine_;
};

std::unique_ptr<TempFolder> DemoMachine::folder_;
std::unique_ptr<FolderMachine> DemoMachine::machine_;

TEST_F(DemoMachine, HoldsAFewHundredFiles) {
  const std::size_t count = listing(folder_->path()).size();
  EXPECT_GE(count, 300U);
  EXPECT_LE(count, 900U);
}

TEST_F(DemoMachine, EachFileOfTheTablesIsThereInItsLength) {
  std::vector<DemoFile> files;
  const auto add = [&](const std::vector<DemoFile>& more) {
    files.insert(files.end(), more.begin(), more.end());
  };
  for (const auto rows : {demo_junk_of_windows(), demo_junk_of_browsers(),
                          demo_junk_of_custom_places(), demo_files_left_alone()}) {
    add(expand(rows));
  }
  for (const DemoBrowser& browser : demo_browsers()) {
    const std::string root = std::string("C:\\Users\\User") + browser.folder;
    add(expand(demo_junk_of_each_browser(), root));
    add(expand(demo_files_left_alone_in_each_browser(), root));
  }
  std::set<std::string> paths;
  for (const DemoFile& file : files) {
    EXPECT_EQ(machine_->files().file_size(file.path), file.bytes) << file.path;
    EXPECT_TRUE(paths.insert(file.path).second) << file.path << " comes twice";
  }
}

TEST_F(DemoMachine, IsTheSameEachTime) {
  const TempFolder again;
  make(again.path());
  EXPECT_EQ(listing(again.path()), listing(folder_->path()));
}

TEST_F(DemoMachine, TakesHardlyAnyRoom) {
  for (const auto& [name, facts] : listing(folder_->path())) {
    struct stat status = {};
    ASSERT_EQ(::stat(folder_->path_of(name).c_str(), &status), 0) << name;
    EXPECT_LT(status.st_blocks, 100) << name << ": " << facts;
  }
}

TEST_F(DemoMachine, HasTwoDrivesProcessesAndAFileInUse) {
  const MachineState& state = machine_->state();
  ASSERT_EQ(state.drives.size(), 2U);
  EXPECT_EQ(state.drives[1].letter, 'D');
  EXPECT_EQ(state.drives[1].folder, folder_->path_of("drive_d"));
  EXPECT_FALSE(state.processes.empty());
  ASSERT_EQ(state.in_use.size(), 1U);
  EXPECT_TRUE(machine_->files().file_size(state.in_use[0]).has_value());
  ASSERT_EQ(state.denied.size(), 1U);
  EXPECT_TRUE(machine_->files().attributes(state.denied[0]).has_value());
}

TEST_F(DemoMachine, EachEntryOfTheUrlCacheHasItsFile) {
  ASSERT_GE(machine_->state().url_cache.size(), 3U);
  for (const MachineCacheEntry& entry : machine_->state().url_cache) {
    EXPECT_EQ(machine_->files().file_size(entry.file), entry.size) << entry.file;
    EXPECT_FALSE(entry.last_access.empty());
  }
}

TEST_F(DemoMachine, EachOfTheSevenBrowsersListsItsProfiles) {
  ASSERT_EQ(demo_browsers().size(), 7U);
  for (const DemoBrowser& browser : demo_browsers()) {
    const auto profiles = machine_->registry().sub_keys(Hive::kCurrentUser, browser.key);
    ASSERT_TRUE(profiles.has_value()) << browser.key;
    EXPECT_EQ(profiles->front(), "Default") << browser.key;
  }
}

TEST_F(DemoMachine, HasAnIgnoredFolderACustomEntryAndAQueuedFile) {
  auto& files = machine_->files();
  const std::string program = machine_->state().program_folder;
  EXPECT_EQ(files.read_file(program + "\\custom.tdw"), "Old backups|D:\\Backup|*.tmp,*.bak||1\r\n");
  const auto ignored = files.read_file(program + "\\ignore.tdw");
  ASSERT_TRUE(ignored);
  EXPECT_FALSE(files.list_folder((*ignored).substr(0, (*ignored).size() - 2), "*.*").empty());

  const auto queue = machine_->registry().value(
      Hive::kLocalMachine, "SYSTEM\\CurrentControlSet\\Control\\Session Manager",
      "PendingFileRenameOperations");
  ASSERT_TRUE(queue.has_value());
  EXPECT_EQ(multi_string_list(queue->data),
            (std::vector<std::string>{"\\??\\C:\\Windows\\Temp\\queued-earlier.tmp", ""}));
  EXPECT_TRUE(files.file_size("C:\\Windows\\Temp\\queued-earlier.tmp").has_value());
}

TEST_F(DemoMachine, HasTheTableOfFileTypesThatComesWithTheProgram) {
  const std::string program = machine_->state().program_folder;
  EXPECT_EQ(machine_->files().read_file(program + "\\tmptype.orv"), data_file("tmptype.orv"));
}

TEST_F(DemoMachine, OldOperaIsReachedThroughTheJunctionOfTheOlderLayout) {
  EXPECT_EQ(machine_->files()
                .list_folder("C:\\Users\\User\\Local Settings\\Opera Software\\Opera Stable\\Cache",
                             "*.*")
                .size(),
            8U);
}

TEST_F(DemoMachine, EachShortcutLeadsWhereItsRowSays) {
  QueuedDialogs dialogs(machine_->effects());
  const Platform platform = machine_->platform(dialogs);
  std::map<DemoTarget, int> kinds;
  for (const DemoLink& link : demo_links()) {
    LinkContent content;
    ++kinds[link.kind];
    EXPECT_TRUE(platform.links.read_link(link.path, content)) << link.path;
    EXPECT_EQ(content.target, demo_target_path(link)) << link.path;
    const bool is_there = link.kind == DemoTarget::kFile || link.kind == DemoTarget::kFolder ||
                          link.kind == DemoTarget::kEnvironment;
    EXPECT_EQ(platform.files.attributes(content.target).has_value(), is_there) << link.path;
  }
  EXPECT_EQ(kinds.size(), 7U);
}

TEST_F(DemoMachine, AMachineThatIsNotThereIsTold) {
  const TempFolder empty;
  EXPECT_TRUE(fill_demo_machine(empty.path_of("gone")).has_value());
}

}  // namespace
}  // namespace quillvane
