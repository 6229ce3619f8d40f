#include "machine/create_machine.h"

#include <cstdint>
#include <filesystem>
#include <memory>
#include <system_error>
#include <utility>
#include <variant>
#include <vector>

#include "machine/registry_setup.h"
#include "platform/folder/host_file.h"
#include "platform/folder/host_path.h"
#include "platform/folder/machine_json.h"
#include "platform/folder/machine_staging.h"
#include "platform/folder/registry_store.h"

namespace quillvane {

namespace {

// A beginning for whoever wants to change the machine.
constexpr const char* kMachineJson = R"({
  "drives": [
    {
      "letter": "C",
      "type": "fixed"
    }
  ]
}
)";

constexpr const char* kFolders[] = {
    "C:\\$Recycle.Bin\\S-1-5-21-1004336348-1177238915-682003330-1001",
    "C:\\Windows",
    "C:\\Windows\\Debug",
    "C:\\Windows\\Downloaded Program Files",
    "C:\\Windows\\Fonts",
    "C:\\Windows\\INF",
    "C:\\Windows\\Installer",
    "C:\\Windows\\Logs",
    "C:\\Windows\\Microsoft.NET",
    "C:\\Windows\\security\\logs",
    "C:\\Windows\\ServiceProfiles\\LocalService\\AppData\\Local",
    "C:\\Windows\\ServiceProfiles\\LocalService\\AppData\\LocalLow",
    "C:\\Windows\\SoftwareDistribution\\Download",
    "C:\\Windows\\System32\\config\\systemprofile\\AppData\\LocalLow",
    "C:\\Windows\\System32\\LogFiles\\Scm",
    "C:\\Windows\\Temp",
    "C:\\Windows\\WinSxS",
    "C:\\Program Files\\Common Files",
    "C:\\Program Files\\Tidewrack",
    "C:\\Program Files (x86)\\Common Files",
    "C:\\ProgramData\\Microsoft\\Windows\\Start Menu\\Programs\\Startup",
    "C:\\ProgramData\\Microsoft\\Windows\\WER\\ReportArchive",
    "C:\\ProgramData\\Microsoft\\Windows\\WER\\ReportQueue",
    "C:\\Users\\Public\\Desktop",
    "C:\\Users\\Public\\Documents",
    "C:\\Users\\User\\AppData\\Local\\Microsoft\\Windows\\Explorer",
    "C:\\Users\\User\\AppData\\Local\\Temp",
    "C:\\Users\\User\\AppData\\LocalLow",
    "C:\\Users\\User\\AppData\\Roaming\\Microsoft\\Windows\\Recent",
    "C:\\Users\\User\\AppData\\Roaming\\Microsoft\\Windows\\Start Menu\\Programs\\Startup",
    "C:\\Users\\User\\Desktop",
    "C:\\Users\\User\\Documents",
    "C:\\Users\\User\\Downloads",
    "C:\\Users\\User\\Favorites",
    "C:\\Users\\User\\Music",
    "C:\\Users\\User\\Pictures",
    "C:\\Users\\User\\Videos",
};

constexpr Hive kMachine = Hive::kLocalMachine;
constexpr Hive kUser = Hive::kCurrentUser;
constexpr RegistryType kNone = RegistryType::kNone;
constexpr RegistryType kSz = RegistryType::kSz;
constexpr RegistryType kExpand = RegistryType::kExpandSz;
constexpr RegistryType kDword = RegistryType::kDword;
constexpr RegistryType kMulti = RegistryType::kMultiSz;

constexpr const char* kHiveList = "SYSTEM\\CurrentControlSet\\Control\\hivelist";
constexpr const char* kCrashControl = "SYSTEM\\CurrentControlSet\\Control\\CrashControl";
constexpr const char* kCurrentVersion = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion";
constexpr const char* kMachineFolders =
    "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Shell Folders";
constexpr const char* kUserFolders =
    "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Shell Folders";

constexpr RegistrySetup kRegistry[] = {
    {Hive::kClassesRoot, kSz, ".lnk", "", "lnkfile"},
    {Hive::kClassesRoot, kSz, ".log", "", "txtfile"},
    {Hive::kClassesRoot, kSz, ".txt", "", "txtfile"},
    {Hive::kClassesRoot, kSz, "lnkfile", "", "Shortcut"},
    {Hive::kClassesRoot, kSz, "txtfile", "", "Text Document"},

    // The loaded hives: the first that is a user's tells whose recycle bin is scanned.
    {kMachine, kSz, kHiveList, "\\REGISTRY\\MACHINE\\HARDWARE", ""},
    {kMachine, kSz, kHiveList, "\\REGISTRY\\MACHINE\\SYSTEM",
     "\\Device\\HarddiskVolume1\\Windows\\System32\\config\\SYSTEM"},
    {kMachine, kSz, kHiveList, "\\REGISTRY\\MACHINE\\SOFTWARE",
     "\\Device\\HarddiskVolume1\\Windows\\System32\\config\\SOFTWARE"},
    {kMachine, kSz, kHiveList, "\\REGISTRY\\USER\\.DEFAULT",
     "\\Device\\HarddiskVolume1\\Windows\\System32\\config\\DEFAULT"},
    {kMachine, kSz, kHiveList, "\\REGISTRY\\USER\\S-1-5-19",
     "\\Device\\HarddiskVolume1\\Windows\\ServiceProfiles\\LocalService\\NTUSER.DAT"},
    {kMachine, kSz, kHiveList, "\\REGISTRY\\USER\\S-1-5-21-1004336348-1177238915-682003330-1001",
     "\\Device\\HarddiskVolume1\\Users\\User\\NTUSER.DAT"},
    {kMachine, kSz, kHiveList,
     "\\REGISTRY\\USER\\S-1-5-21-1004336348-1177238915-682003330-1001_Classes",
     "\\Device\\HarddiskVolume1\\Users\\User\\AppData\\Local\\Microsoft\\Windows\\UsrClass.dat"},
    {kMachine, kDword, kCrashControl, "CrashDumpEnabled", "2"},
    {kMachine, kExpand, kCrashControl, "DumpFile", "%SystemRoot%\\MEMORY.DMP"},
    {kMachine, kExpand, kCrashControl, "MinidumpDir", "%SystemRoot%\\Minidump"},
    {kMachine, kMulti, "SYSTEM\\CurrentControlSet\\Control\\Session Manager", "BootExecute",
     "autocheck autochk *"},
    {kMachine, kNone, "SYSTEM\\CurrentControlSet\\Services\\EventLog\\Application"},
    {kMachine, kSz, kCurrentVersion, "ProgramFilesDir", "C:\\Program Files"},
    {kMachine, kSz, kCurrentVersion, "CommonFilesDir", "C:\\Program Files\\Common Files"},
    {kMachine, kNone, "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Advanced"},
    {kMachine, kNone, "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer"},
    {kMachine, kNone, "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run"},
    {kMachine, kNone, "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall"},
    {kMachine, kSz, kMachineFolders, "Common AppData", "C:\\ProgramData"},
    {kMachine, kSz, kMachineFolders, "Common Desktop", "C:\\Users\\Public\\Desktop"},
    {kMachine, kSz, kMachineFolders, "Common Documents", "C:\\Users\\Public\\Documents"},
    {kMachine, kSz, kMachineFolders, "Common Start Menu",
     "C:\\ProgramData\\Microsoft\\Windows\\Start Menu"},
    {kMachine, kSz, kMachineFolders, "Common Programs",
     "C:\\ProgramData\\Microsoft\\Windows\\Start Menu\\Programs"},
    {kMachine, kSz, kMachineFolders, "Common Startup",
     "C:\\ProgramData\\Microsoft\\Windows\\Start Menu\\Programs\\Startup"},
    {kMachine, kSz, "SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion", "ProductName",
     "Windows 10 Pro"},
    {kMachine, kExpand,
     "SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\ProfileList\\"
     "S-1-5-21-1004336348-1177238915-682003330-1001",
     "ProfileImagePath", "C:\\Users\\User"},
    {kMachine, kNone, "SOFTWARE\\Policies\\Microsoft\\Windows"},
    {kUser, kExpand, "Environment", "TEMP", "%USERPROFILE%\\AppData\\Local\\Temp"},
    {kUser, kExpand, "Environment", "TMP", "%USERPROFILE%\\AppData\\Local\\Temp"},
    {kUser, kNone, "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Advanced"},
    {kUser, kSz, kUserFolders, "AppData", "C:\\Users\\User\\AppData\\Roaming"},
    {kUser, kSz, kUserFolders, "Local AppData", "C:\\Users\\User\\AppData\\Local"},
    {kUser, kSz, kUserFolders, "Cache",
     "C:\\Users\\User\\AppData\\Local\\Microsoft\\Windows\\INetCache"},
    {kUser, kSz, kUserFolders, "Desktop", "C:\\Users\\User\\Desktop"},
    {kUser, kSz, kUserFolders, "Favorites", "C:\\Users\\User\\Favorites"},
    {kUser, kSz, kUserFolders, "My Music", "C:\\Users\\User\\Music"},
    {kUser, kSz, kUserFolders, "My Pictures", "C:\\Users\\User\\Pictures"},
    {kUser, kSz, kUserFolders, "My Video", "C:\\Users\\User\\Videos"},
    {kUser, kSz, kUserFolders, "Personal", "C:\\Users\\User\\Documents"},
    {kUser, kSz, kUserFolders, "Recent",
     "C:\\Users\\User\\AppData\\Roaming\\Microsoft\\Windows\\Recent"},
    {kUser, kSz, kUserFolders, "Start Menu",
     "C:\\Users\\User\\AppData\\Roaming\\Microsoft\\Windows\\Start Menu"},
    {kUser, kSz, kUserFolders, "Programs",
     "C:\\Users\\User\\AppData\\Roaming\\Microsoft\\Windows\\Start Menu\\Programs"},
    {kUser, kSz, kUserFolders, "Startup",
     "C:\\Users\\User\\AppData\\Roaming\\Microsoft\\Windows\\Start Menu\\Programs\\Startup"},
    {kUser, kNone, "Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer"},
    {kUser, kNone, "Software\\Microsoft\\Windows\\CurrentVersion\\Run"},
    {kUser, kNone, "Software\\Policies\\Microsoft\\Windows\\Explorer"},
    {Hive::kUsers, kNone, ".DEFAULT"},
    {Hive::kUsers, kNone, "S-1-5-19"},
    {Hive::kUsers, kNone, "S-1-5-21-1004336348-1177238915-682003330-1001"},
    {Hive::kUsers, kNone, "S-1-5-21-1004336348-1177238915-682003330-1001_Classes"},
};

namespace fs = std::filesystem;

// The folder and those above it that are not there yet, the lowest first.
std::vector<fs::path> missing_folders(const std::string& dir) {
  std::vector<fs::path> missing;
  std::error_code failed;
  fs::path folder = fs::absolute(host_path(dir), failed).lexically_normal();
  if (!folder.has_filename()) folder = folder.parent_path();
  while (!failed && folder.has_relative_path() && !fs::exists(folder, failed)) {
    missing.push_back(folder);
    folder = folder.parent_path();
  }
  return missing;
}

// Takes away what was made of a machine, and the folders that were made for it.
void take_away(const std::string& dir, const std::vector<fs::path>& made) {
  std::error_code ignored;
  for (const char* part : {"machine.json", "registry.db", "registry.db-journal", "drive_c"}) {
    fs::remove_all(host_path(dir) / part, ignored);
  }
  for (const fs::path& folder : made) fs::remove(folder, ignored);  // only empty ones go
}

// Makes the folder, or sees that there is nothing in it.
std::optional<std::string> take_folder(const std::string& dir) {
  std::error_code failed;
  const std::filesystem::path folder = host_path(dir);
  std::filesystem::create_directories(folder, failed);
  if (failed) return dir + ": cannot be made: " + failed.message();
  const bool empty = std::filesystem::is_empty(folder, failed);
  if (failed) return dir + ": cannot be read: " + failed.message();
  if (!empty) return dir + ": the folder is not empty";
  return std::nullopt;
}

std::optional<std::string> make_machine(const std::string& dir) {
  if (const std::error_code failed = replace_host_file(dir + "/machine.json", kMachineJson)) {
    return dir + "/machine.json: cannot be written: " + failed.message();
  }
  const auto loaded = load_machine_json(dir);
  if (const auto* problem = std::get_if<std::string>(&loaded)) return dir + "/" + *problem;
  const auto& machine = std::get<MachineState>(loaded);
  for (const char* folder : kFolders) {
    if (const std::error_code failed = stage_folder(machine, folder)) {
      return std::string(folder) + ": cannot be made: " + failed.message();
    }
  }

  EffectLog unused;
  auto opened = FolderRegistry::open(dir + "/registry.db", unused);
  if (const auto* problem = std::get_if<std::string>(&opened)) return dir + "/" + *problem;
  auto& registry = *std::get<std::unique_ptr<FolderRegistry>>(opened);
  if (!set_up_registry(registry, kRegistry)) return dir + "/registry.db: cannot be written";
  return std::nullopt;
}

}  // namespace

std::optional<std::string> create_machine(const std::string& dir, const FillMachine& fill) {
  const std::vector<fs::path> made = missing_folders(dir);
  if (auto problem = take_folder(dir)) return problem;
  auto problem = make_machine(dir);
  if (!problem && fill) problem = fill(dir);
  if (problem) take_away(dir, made);
  return problem;
}

}  // namespace quillvane
