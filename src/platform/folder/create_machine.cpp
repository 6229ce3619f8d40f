#include "platform/folder/create_machine.h"

#include <cstdint>
#include <filesystem>
#include <memory>
#include <system_error>
#include <utility>
#include <variant>

#include "platform/folder/host_file.h"
#include "platform/folder/machine_json.h"
#include "platform/folder/machine_staging.h"
#include "platform/folder/registry_setup.h"
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
    {Hive::kClassesRoot, ".lnk", "", kSz, "lnkfile"},
    {Hive::kClassesRoot, ".log", "", kSz, "txtfile"},
    {Hive::kClassesRoot, ".txt", "", kSz, "txtfile"},
    {Hive::kClassesRoot, "lnkfile", "", kSz, "Shortcut"},
    {Hive::kClassesRoot, "txtfile", "", kSz, "Text Document"},

    // The loaded hives: the first that is a user's tells whose recycle bin is scanned.
    {kMachine, kHiveList, "\\REGISTRY\\MACHINE\\HARDWARE", kSz, ""},
    {kMachine, kHiveList, "\\REGISTRY\\MACHINE\\SYSTEM", kSz,
     "\\Device\\HarddiskVolume1\\Windows\\System32\\config\\SYSTEM"},
    {kMachine, kHiveList, "\\REGISTRY\\MACHINE\\SOFTWARE", kSz,
     "\\Device\\HarddiskVolume1\\Windows\\System32\\config\\SOFTWARE"},
    {kMachine, kHiveList, "\\REGISTRY\\USER\\.DEFAULT", kSz,
     "\\Device\\HarddiskVolume1\\Windows\\System32\\config\\DEFAULT"},
    {kMachine, kHiveList, "\\REGISTRY\\USER\\S-1-5-19", kSz,
     "\\Device\\HarddiskVolume1\\Windows\\ServiceProfiles\\LocalService\\NTUSER.DAT"},
    {kMachine, kHiveList, "\\REGISTRY\\USER\\S-1-5-21-1004336348-1177238915-682003330-1001", kSz,
     "\\Device\\HarddiskVolume1\\Users\\User\\NTUSER.DAT"},
    {kMachine, kHiveList, "\\REGISTRY\\USER\\S-1-5-21-1004336348-1177238915-682003330-1001_Classes",
     kSz,
     "\\Device\\HarddiskVolume1\\Users\\User\\AppData\\Local\\Microsoft\\Windows\\UsrClass.dat"},

    {kMachine, kCrashControl, "CrashDumpEnabled", kDword, "", 2},
    {kMachine, kCrashControl, "DumpFile", kExpand, "%SystemRoot%\\MEMORY.DMP"},
    {kMachine, kCrashControl, "MinidumpDir", kExpand, "%SystemRoot%\\Minidump"},
    {kMachine, "SYSTEM\\CurrentControlSet\\Control\\Session Manager", "BootExecute", kMulti,
     "autocheck autochk *"},
    {kMachine, "SYSTEM\\CurrentControlSet\\Services\\EventLog\\Application"},

    {kMachine, kCurrentVersion, "ProgramFilesDir", kSz, "C:\\Program Files"},
    {kMachine, kCurrentVersion, "CommonFilesDir", kSz, "C:\\Program Files\\Common Files"},
    {kMachine, "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Advanced"},
    {kMachine, "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer"},
    {kMachine, "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run"},
    {kMachine, "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall"},
    {kMachine, kMachineFolders, "Common AppData", kSz, "C:\\ProgramData"},
    {kMachine, kMachineFolders, "Common Desktop", kSz, "C:\\Users\\Public\\Desktop"},
    {kMachine, kMachineFolders, "Common Documents", kSz, "C:\\Users\\Public\\Documents"},
    {kMachine, kMachineFolders, "Common Start Menu", kSz,
     "C:\\ProgramData\\Microsoft\\Windows\\Start Menu"},
    {kMachine, kMachineFolders, "Common Programs", kSz,
     "C:\\ProgramData\\Microsoft\\Windows\\Start Menu\\Programs"},
    {kMachine, kMachineFolders, "Common Startup", kSz,
     "C:\\ProgramData\\Microsoft\\Windows\\Start Menu\\Programs\\Startup"},
    {kMachine, "SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion", "ProductName", kSz,
     "Windows 10 Pro"},
    {kMachine,
     "SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\ProfileList\\"
     "S-1-5-21-1004336348-1177238915-682003330-1001",
     "ProfileImagePath", kExpand, "C:\\Users\\User"},
    {kMachine, "SOFTWARE\\Policies\\Microsoft\\Windows"},

    {kUser, "Environment", "TEMP", kExpand, "%USERPROFILE%\\AppData\\Local\\Temp"},
    {kUser, "Environment", "TMP", kExpand, "%USERPROFILE%\\AppData\\Local\\Temp"},
    {kUser, "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Advanced"},
    {kUser, kUserFolders, "AppData", kSz, "C:\\Users\\User\\AppData\\Roaming"},
    {kUser, kUserFolders, "Local AppData", kSz, "C:\\Users\\User\\AppData\\Local"},
    {kUser, kUserFolders, "Cache", kSz,
     "C:\\Users\\User\\AppData\\Local\\Microsoft\\Windows\\INetCache"},
    {kUser, kUserFolders, "Desktop", kSz, "C:\\Users\\User\\Desktop"},
    {kUser, kUserFolders, "Favorites", kSz, "C:\\Users\\User\\Favorites"},
    {kUser, kUserFolders, "My Music", kSz, "C:\\Users\\User\\Music"},
    {kUser, kUserFolders, "My Pictures", kSz, "C:\\Users\\User\\Pictures"},
    {kUser, kUserFolders, "My Video", kSz, "C:\\Users\\User\\Videos"},
    {kUser, kUserFolders, "Personal", kSz, "C:\\Users\\User\\Documents"},
    {kUser, kUserFolders, "Recent", kSz,
     "C:\\Users\\User\\AppData\\Roaming\\Microsoft\\Windows\\Recent"},
    {kUser, kUserFolders, "Start Menu", kSz,
     "C:\\Users\\User\\AppData\\Roaming\\Microsoft\\Windows\\Start Menu"},
    {kUser, kUserFolders, "Programs", kSz,
     "C:\\Users\\User\\AppData\\Roaming\\Microsoft\\Windows\\Start Menu\\Programs"},
    {kUser, kUserFolders, "Startup", kSz,
     "C:\\Users\\User\\AppData\\Roaming\\Microsoft\\Windows\\Start Menu\\Programs\\Startup"},
    {kUser, "Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer"},
    {kUser, "Software\\Microsoft\\Windows\\CurrentVersion\\Run"},
    {kUser, "Software\\Policies\\Microsoft\\Windows\\Explorer"},

    {Hive::kUsers, ".DEFAULT"},
    {Hive::kUsers, "S-1-5-19"},
    {Hive::kUsers, "S-1-5-21-1004336348-1177238915-682003330-1001"},
    {Hive::kUsers, "S-1-5-21-1004336348-1177238915-682003330-1001_Classes"},
};

// Makes the folder, or sees that there is nothing in it.
std::optional<std::string> take_folder(const std::string& dir) {
  std::error_code failed;
  std::filesystem::create_directories(dir, failed);
  if (failed) return dir + ": cannot be made: " + failed.message();
  const bool empty = std::filesystem::is_empty(dir, failed);
  if (failed) return dir + ": cannot be read: " + failed.message();
  if (!empty) return dir + ": the folder is not empty";
  return std::nullopt;
}

}  // namespace

std::optional<std::string> create_machine(const std::string& dir) {
  if (auto problem = take_folder(dir)) return problem;
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

}  // namespace quillvane
