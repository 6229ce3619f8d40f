#include "categories/windows_categories.h"

#include <cstdint>
#include <optional>
#include <string>
#include <variant>

#include "categories/category_frame.h"
#include "categories/place.h"
#include "scan/catalogue.h"
#include "scan/junk_page.h"
#include "support/registry_values.h"
#include "support/stored_path.h"

namespace quillvane {

namespace {

constexpr Place kSystemTemporary[] = {
    {"WinDir", "\\Temp", "*.*"},
    {"USERPROFILE", "\\AppData\\LocalLow\\Microsoft\\CryptnetUrlCache\\Content", "*.*"},
    {"WinDir",
     "\\System32\\config\\systemprofile\\AppData\\LocalLow\\Microsoft\\CryptnetUrlCache\\Content",
     "*.*"},
    {"WinDir",
     "\\ServiceProfiles\\LocalService\\AppData\\LocalLow\\Microsoft\\CryptnetUrlCache\\Content",
     "*.*"},
    {"WinDir", "\\ServiceProfiles\\LocalService\\AppData\\Local", "~*.dat"},
    {"WinDir", "\\winsxs\\ManifestCache", "*.*"},
};

constexpr Place kUserTemporary[] = {{"temp", "", "*.*"}};

// The font caches go with the thumbnails.
constexpr Place kThumbnails[] = {
    {"LOCALAPPDATA", "\\Microsoft\\Windows\\Explorer", "*.db"},
    {"WinDir", "\\ServiceProfiles\\LocalService\\AppData\\Local", "~font*.dat"},
    {"WinDir", "\\system32", "FNTCACHE.DAT"},
};

constexpr Place kErrorReports[] = {
    {"USERPROFILE", "\\AppData\\Local\\Microsoft\\Windows\\WER\\ReportArchive", "*.*"},
    {"USERPROFILE", "\\AppData\\Local\\Microsoft\\Windows\\WER\\ReportQueue", "*.*"},
    {"ALLUSERSPROFILE", "\\AppData\\Local\\Microsoft\\Windows\\WER\\ReportArchive", "*.*"},
    {"ALLUSERSPROFILE", "\\AppData\\Local\\Microsoft\\Windows\\WER\\ReportQueue", "*.*"},
    {"ALLUSERSPROFILE", "\\Microsoft\\Windows\\WER\\ReportArchive", "*.*"},
    {"ALLUSERSPROFILE", "\\Microsoft\\Windows\\WER\\ReportQueue", "*.*"},
};

// Two places stand twice: their files come up and count twice, which is meant so.
constexpr Place kLogFiles[] = {
    {"WinDir", "\\system32\\logfiles", "*.log"},
    {"WinDir", "\\system32\\logfiles", "*.log"},
    {"WinDir", "\\system32\\logfiles", "*.etl"},
    {"WinDir", "\\Logs", "*.log"},
    {"WinDir", "\\SoftwareDistribution", "*.log"},
    {"WinDir", "\\SoftwareDistribution", "*.jrs"},
    {"WinDir", "\\SoftwareDistribution", "*.chk"},
    {"USERPROFILE", "\\AppData\\Roaming\\Microsoft\\Windows", "*.log"},
    {"USERPROFILE", "\\AppData\\local\\Microsoft\\Windows", "*.log"},
    {"USERPROFILE", "\\AppData\\local\\Microsoft", "*.log", Take::kClrFolders},
    {"WinDir", "\\debug", "*.log"},
    {"WinDir", "\\system32\\logfiles", "*.etl"},
    {"WinDir", "\\system32\\logfiles\\scm", "*.*"},
    {"WinDir", "\\security\\logs", "*.*"},
    {"WinDir", "\\inf", "*.log"},
    {"WinDir", "\\Microsoft.NET", "*.log"},
    {"ALLUSERSPROFILE", "\\Microsoft\\Search\\Data\\Applications\\Windows", "*.log"},
    {"ALLUSERSPROFILE", "\\Microsoft\\Search\\Data\\Applications\\Windows", "*.jrs"},
    {"ALLUSERSPROFILE", "\\Microsoft\\Search\\Data\\Applications\\Windows", "*.chk"},
};

constexpr Place kDownloadedPrograms[] = {{"WinDir", "\\Downloaded Program Files", "*.*"}};

constexpr Place kWindowsUpdates[] = {
    {"WinDir", "\\SoftwareDistribution\\Download", "*.*"},
    {"WinDir", "\\Installer\\$PatchCache$", "*.*"},
    {"WinDir", "\\Installer", "*.msi", Take::kEmptyFiles},
};

constexpr Place kWindowsHistory[] = {
    {"APPDATA", "\\microsoft\\windows\\recent", "*.lnk"},
    {"APPDATA", "\\microsoft\\office\\recent", "*.lnk"},
};

// The size of the memory dump file; nothing when there is none.
std::optional<std::uint64_t> dump_file_size(const JunkPage& page) {
  const Platform& platform = page.platform();
  auto value = GetRegistryValue(platform.registry, Hive::kLocalMachine,
                                "SYSTEM\\CurrentControlSet\\Control\\CrashControl", "DumpFile");
  if (!value || !std::holds_alternative<std::string>(*value)) return std::nullopt;
  const std::string path =
      GetPath(platform.environment, page.session.Is64Bit, std::get<std::string>(*value));
  return platform.files.file_size(path);
}

}  // namespace

void systemp(JunkPage& page) { scan_places(page, kSystemTempNode, kSystemTemporary); }
void utemp(JunkPage& page) { scan_places(page, kUserTempNode, kUserTemporary); }
void thumb(JunkPage& page) { scan_places(page, kThumbnailNode, kThumbnails); }
void errorrep(JunkPage& page) { scan_places(page, kErrorReportNode, kErrorReports); }
void logfile(JunkPage& page) { scan_places(page, kLogFileNode, kLogFiles); }
void downloadprog(JunkPage& page) { scan_places(page, kDownloadedNode, kDownloadedPrograms); }
void wupdates(JunkPage& page) { scan_places(page, kUpdatesNode, kWindowsUpdates); }
void whistory(JunkPage& page) { scan_places(page, kHistoryNode, kWindowsHistory); }

// Leaves the running numbers as the category before it left them, so those are added to the group
// a second time, and the dump file is in no total and in no row: meant so.
void memdump(JunkPage& page) {
  page.Tv1.set_node_color(kMemoryDumpNode, kGreen);
  page.Tv1.refresh();
  const auto size = dump_file_size(page);
  const std::string caption = page.Tv1.node(kMemoryDumpNode).text;
  if (size) {
    page.Tv1.set_text(kMemoryDumpNode,
                      caption + " ( 1 file, " + page.size_text(static_cast<double>(*size)) + " )");
    page.Tv1.set_node_color(kMemoryDumpNode, kDarkRed);
  } else {
    page.Tv1.set_text(kMemoryDumpNode, caption + " ( 0 files, 0 Byte )");
    page.Tv1.set_node_color(kMemoryDumpNode, 0);
  }
  add_to_group(page, kMemoryDumpNode);
}

// The folder of one user on each fixed drive; of all users when no SID is known.
void recycleb(JunkPage& page) {
  begin_category(page, kRecycleBinNode);
  const Platform& platform = page.platform();
  for (const std::string& drive : page.Drive1.items()) {
    const std::string root = drive.substr(0, 1) + ":\\";
    if (platform.drives.type(root) != DriveType::kFixed) continue;
    page.srch(root + "$RECYCLE.BIN\\" + GetHiveListSid(platform.registry, platform.files), "*.*",
              kRecycleBinNode);
  }
  end_category(page, kRecycleBinNode);
}

}  // namespace quillvane
