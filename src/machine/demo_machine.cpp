#include "machine/demo_machine.h"

#include <cstdint>
#include <filesystem>
#include <memory>
#include <span>
#include <system_error>
#include <utility>
#include <variant>
#include <vector>

#include "machine/data_files.h"
#include "machine/demo_files.h"
#include "machine/demo_links.h"
#include "platform/folder/drive_words.h"
#include "platform/folder/host_path.h"
#include "platform/folder/machine_json.h"
#include "platform/folder/machine_staging.h"
#include "platform/folder/registry_store.h"
#include "platform/multi_string.h"

namespace quillvane {

namespace {

constexpr const char* kUserFolder = "C:\\Users\\User";
constexpr const char* kIgnored =
    "C:\\ProgramData\\Microsoft\\Windows\\WER\\ReportArchive\\AppCrash_ledger.exe_kept\r\n";
constexpr const char* kCustomEntry = "Old backups|D:\\Backup|*.tmp,*.bak||1\r\n";
constexpr const char* kInUse = "C:\\Users\\User\\AppData\\Local\\Temp\\setup-running.tmp";
constexpr const char* kDenied = "C:\\System Volume Information";
constexpr const char* kQueued = "\\??\\C:\\Windows\\Temp\\queued-earlier.tmp";

// 2025-11-10 10:00, for files of no particular time.
constexpr FileTime kOtherwiseTime{134'072'424'000'000'000};

struct CachedPage {
  const char* url;
  const char* file;
  std::uint64_t bytes;
  const char* last_access;
};

constexpr CachedPage kCachedPages[] = {
    {"http://weather.example/today.htm", "8KQ2XW1T\\today[1].htm", 38'411, "2025-11-02 07:41:09"},
    {"http://weather.example/map.png", "8KQ2XW1T\\map[1].png", 151'920, "2025-11-02 07:41:10"},
    {"http://news.example/front.htm", "P0R7LM3C\\front[1].htm", 94'002, "2025-11-03 18:20:55"},
    {"http://news.example/style.css", "P0R7LM3C\\style[1].css", 22'718, "2025-11-03 18:20:55"},
    {"http://shop.example/basket.js", "P0R7LM3C\\basket[2].js", 61'300, "2025-11-09 12:03:31"},
};

std::string cache_file(const CachedPage& page) {
  return std::string(kUserFolder) + "\\AppData\\Local\\Microsoft\\Windows\\INetCache\\IE\\" +
         page.file;
}

// The machine's drives, processes and the like.
void describe(MachineState& machine) {
  constexpr std::uint64_t kGigabyte = 1'000'000'000;
  MachineDrive& system = machine.drives.at(0);
  system.total_bytes = 256 * kGigabyte;
  system.free_bytes = 41 * kGigabyte;
  const auto data_folder = host_path(system.folder).replace_filename(default_drive_folder('D'));
  machine.drives.push_back(
      {'D', DriveType::kFixed, host_text(data_folder), 500 * kGigabyte, 312 * kGigabyte});
  machine.processes = {{4, "System"}, {612, "svchost.exe"}, {2208, "explorer.exe"}};
  machine.in_use = {kInUse};
  machine.denied = {kDenied};
  for (const CachedPage& page : kCachedPages) {
    machine.url_cache.push_back({page.url, cache_file(page), page.bytes, page.last_access});
  }
}

// Stages files until one fails, which is kept.
class Stage {
 public:
  explicit Stage(const MachineState& machine) : machine_(machine) {}

  [[nodiscard]] const std::optional<std::string>& problem() const { return problem_; }

  void rows(std::span<const DemoFiles> rows, const std::string& root = {}) {
    for (const DemoFiles& row : rows) {
      for (const DemoFile& each : expand_demo_files(row, root)) {
        file(each.path, {.text = {}, .bytes = each.bytes, .time = each.time});
      }
    }
  }

  void file(const std::string& path, StagedContent content) {
    if (!content.time) content.time = kOtherwiseTime;
    if (!problem_) keep(path, stage_file(machine_, path, content));
  }

  void folder(const std::string& path) {
    if (!problem_) keep(path, stage_folder(machine_, path));
  }

  // Left out on a disk that knows no links: it shows the machine in nothing else.
  void junction(const std::string& path, const std::string& target) {
    if (problem_) return;
    const std::error_code failed = stage_junction(machine_, path, target);
    if (failed != std::errc::operation_not_supported) keep(path, failed);
  }

 private:
  void keep(const std::string& path, std::error_code failed) {
    if (failed) problem_ = path + ": cannot be made: " + failed.message();
  }

  const MachineState& machine_;
  std::optional<std::string> problem_;
};

void stage_links(Stage& stage) {
  for (const DemoLink& link : demo_links()) {
    if (link.kind == DemoTarget::kFile || link.kind == DemoTarget::kEnvironment) {
      stage.file(demo_target_path(link), {.text = {}, .bytes = link.bytes, .time = {}});
    }
    stage.file(link.path, {.text = demo_link_file(link), .bytes = 0, .time = {}});
  }
}

std::optional<std::string> stage_files(const MachineState& machine) {
  Stage stage(machine);
  stage.rows(demo_junk_of_windows());
  stage.rows(demo_junk_of_browsers());
  stage.rows(demo_junk_of_custom_places());
  stage.rows(demo_files_left_alone());
  for (const DemoBrowser& browser : demo_browsers()) {
    const std::string root = std::string(kUserFolder) + browser.folder;
    stage.rows(demo_junk_of_each_browser(), root);
    stage.rows(demo_files_left_alone_in_each_browser(), root);
  }
  for (const CachedPage& page : kCachedPages) {
    stage.file(cache_file(page), {.text = {}, .bytes = page.bytes, .time = {}});
  }
  stage_links(stage);
  stage.file(kInUse, {.text = {}, .bytes = 870'400, .time = {}});
  stage.folder(kDenied);
  stage.junction(std::string(kUserFolder) + "\\Local Settings",
                 std::string(kUserFolder) + "\\AppData\\Local");
  for (const DataFile& file : data_files()) {
    stage.file(machine.program_folder + "\\" + std::string(file.name),
               {.text = file.bytes, .bytes = 0, .time = {}});
  }
  stage.file(machine.program_folder + "\\ignore.tdw", {.text = kIgnored, .bytes = 0, .time = {}});
  stage.file(machine.program_folder + "\\custom.tdw",
             {.text = kCustomEntry, .bytes = 0, .time = {}});
  return stage.problem();
}

bool set_up(FolderRegistry& registry) {
  return registry.at_one_stroke([&] {
    for (const DemoBrowser& browser : demo_browsers()) {
      if (!registry.create_key(Hive::kCurrentUser, std::string(browser.key) + "\\Default")) {
        return false;
      }
    }
    return registry.create_key(Hive::kCurrentUser,
                               "Software\\Google\\Chrome\\PreferenceMACs\\Profile 1") &&
           registry.store_value(Hive::kLocalMachine,
                                "SYSTEM\\CurrentControlSet\\Control\\Session Manager",
                                "PendingFileRenameOperations",
                                {RegistryType::kMultiSz, multi_string_data({kQueued, ""})});
  });
}

}  // namespace

std::optional<std::string> fill_demo_machine(const std::string& dir) {
  auto loaded = load_machine_json(dir);
  if (const auto* problem = std::get_if<std::string>(&loaded)) return dir + "/" + *problem;
  auto& machine = std::get<MachineState>(loaded);
  describe(machine);
  if (auto problem = save_machine_json(dir, machine)) return dir + "/" + *problem;
  if (auto problem = stage_files(machine)) return problem;

  EffectLog unused;
  auto opened = FolderRegistry::open(dir + "/registry.db", unused);
  if (const auto* problem = std::get_if<std::string>(&opened)) return dir + "/" + *problem;
  if (!set_up(*std::get<std::unique_ptr<FolderRegistry>>(opened))) {
    return dir + "/registry.db: cannot be written";
  }
  return std::nullopt;
}

}  // namespace quillvane
