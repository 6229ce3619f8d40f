#include "machine/demo_files.h"

#include <array>
#include <string_view>

namespace quillvane {

namespace {

constexpr std::uint64_t kKilobyte = 1024;
constexpr std::uint64_t kMegabyte = 1024 * kKilobyte;

constexpr DemoFiles kWindowsJunk[] = {
    // System Temporary
    {"C:\\Windows\\Temp", "TMP*.tmp", 340 * kKilobyte, 12},
    {"C:\\Windows\\Temp", "MpCmdRun.log", 61 * kKilobyte},
    {"C:\\Windows\\Temp\\msdtadmin", "install-#.log", 18 * kKilobyte, 3},
    {"C:\\Users\\User\\AppData\\LocalLow\\Microsoft\\CryptnetUrlCache\\Content",
     "77EC63BDA74BD0D0E0426DC8F800*", 3 * kKilobyte, 6},
    {"C:\\Windows\\System32\\config\\systemprofile\\AppData\\LocalLow\\Microsoft\\"
     "CryptnetUrlCache\\Content",
     "94308059B57B3142E455B38A6EB9*", 2 * kKilobyte, 4},
    {"C:\\Windows\\ServiceProfiles\\LocalService\\AppData\\LocalLow\\Microsoft\\"
     "CryptnetUrlCache\\Content",
     "F0ACCF77CDCBFF39F6191887F6D2*", 2 * kKilobyte, 2},
    // Font caches count as thumbnails, too.
    {"C:\\Windows\\ServiceProfiles\\LocalService\\AppData\\Local", "~FontCache-System.dat",
     5 * kMegabyte},
    {"C:\\Windows\\ServiceProfiles\\LocalService\\AppData\\Local", "~FontCache-FontFace.dat",
     16 * kMegabyte},
    {"C:\\Windows\\WinSxS\\ManifestCache", "*bd5c_blobs.bin", 9 * kMegabyte},

    // User Temporary
    {"C:\\Users\\User\\AppData\\Local\\Temp", "~DF*.tmp", 96 * kKilobyte, 18},
    {"C:\\Users\\User\\AppData\\Local\\Temp", "wct*.tmp", 42 * kKilobyte, 9},
    {"C:\\Users\\User\\AppData\\Local\\Temp\\setup-bundle-*", "package-#.cab", 24 * kMegabyte, 4},
    {"C:\\Users\\User\\AppData\\Local\\Temp\\Low", "JavaDeployReg.log", 9 * kKilobyte},
    {"C:\\Users\\User\\AppData\\Local\\Temp\\msohtmlclip1\\01", "clip_image00#.png", 31 * kKilobyte,
     5},

    // Thumbnail cache
    {"C:\\Users\\User\\AppData\\Local\\Microsoft\\Windows\\Explorer", "thumbcache_32.db",
     1 * kMegabyte},
    {"C:\\Users\\User\\AppData\\Local\\Microsoft\\Windows\\Explorer", "thumbcache_96.db",
     23 * kMegabyte},
    {"C:\\Users\\User\\AppData\\Local\\Microsoft\\Windows\\Explorer", "thumbcache_256.db",
     118 * kMegabyte},
    {"C:\\Users\\User\\AppData\\Local\\Microsoft\\Windows\\Explorer", "iconcache_#.db",
     2 * kMegabyte, 3},
    {"C:\\Windows\\System32", "FNTCACHE.DAT", 412 * kKilobyte},

    // Memory Dump Files
    {"C:\\Windows", "MEMORY.DMP", 418 * kMegabyte},

    // Error Report Files
    {"C:\\Users\\User\\AppData\\Local\\Microsoft\\Windows\\WER\\ReportArchive\\"
     "AppCrash_notes.exe_*",
     "Report.wer", 12 * kKilobyte, 4},
    {"C:\\Users\\User\\AppData\\Local\\Microsoft\\Windows\\WER\\ReportQueue\\"
     "AppHang_viewer.exe_*",
     "Report.wer", 9 * kKilobyte, 2},
    {"C:\\ProgramData\\Microsoft\\Windows\\WER\\ReportArchive\\Kernel_0_0_*", "Report.wer",
     14 * kKilobyte, 3},
    {"C:\\ProgramData\\Microsoft\\Windows\\WER\\ReportQueue\\AppCrash_spool.exe_*", "memory.hdmp",
     21 * kMegabyte},

    // Log Files; those of System32\LogFiles are found twice.
    {"C:\\Windows\\System32\\LogFiles\\HTTPERR", "httperr#.log", 88 * kKilobyte, 3},
    {"C:\\Windows\\System32\\LogFiles\\WMI", "RtBackup#.etl", 512 * kKilobyte, 2},
    {"C:\\Windows\\System32\\LogFiles\\Scm", "*-scm.txt", 1 * kKilobyte, 4},
    {"C:\\Windows\\Logs\\CBS", "CbsPersist_#.log", 3 * kMegabyte, 4},
    {"C:\\Windows\\Logs\\DISM", "dism.log", 740 * kKilobyte},
    {"C:\\Windows\\SoftwareDistribution\\DataStore\\Logs", "edb0000#.log", 1280 * kKilobyte, 3},
    {"C:\\Windows\\SoftwareDistribution\\DataStore\\Logs", "edbres0000#.jrs", 1280 * kKilobyte, 2},
    {"C:\\Windows\\SoftwareDistribution\\DataStore\\Logs", "edb.chk", 8 * kKilobyte},
    {"C:\\Users\\User\\AppData\\Roaming\\Microsoft\\Windows\\Themes", "slideshow.log",
     4 * kKilobyte},
    {"C:\\Users\\User\\AppData\\Local\\Microsoft\\Windows\\WebCache", "V01*.log", 512 * kKilobyte,
     3},
    {"C:\\Users\\User\\AppData\\Local\\Microsoft\\CLR_v4.0\\UsageLogs", "tool-#.exe.log",
     2 * kKilobyte, 4},
    {"C:\\Windows\\Debug", "mrt.log", 36 * kKilobyte},
    {"C:\\Windows\\Debug\\WIA", "wiatrace.log", 5 * kKilobyte},
    {"C:\\Windows\\security\\logs", "scecomp.log", 27 * kKilobyte},
    {"C:\\Windows\\INF", "setupapi.dev.log", 1900 * kKilobyte},
    {"C:\\Windows\\INF", "setupapi.setup.log", 640 * kKilobyte},
    {"C:\\Windows\\Microsoft.NET\\Framework\\v4.0.30319", "ngen.log", 210 * kKilobyte},
    {"C:\\ProgramData\\Microsoft\\Search\\Data\\Applications\\Windows", "MSS0000#.log",
     1024 * kKilobyte, 3},
    {"C:\\ProgramData\\Microsoft\\Search\\Data\\Applications\\Windows", "MSSres0000#.jrs",
     1024 * kKilobyte, 2},
    {"C:\\ProgramData\\Microsoft\\Search\\Data\\Applications\\Windows", "MSS.chk", 8 * kKilobyte},

    // Recycle Bin, on both drives
    {"C:\\$Recycle.Bin\\S-1-5-21-1004336348-1177238915-682003330-1001", "$IK*.docx", 544, 3},
    {"C:\\$Recycle.Bin\\S-1-5-21-1004336348-1177238915-682003330-1001", "$RK*.docx", 84 * kKilobyte,
     3},
    {"C:\\$Recycle.Bin\\S-1-5-21-1004336348-1177238915-682003330-1001\\$RQ7M2XA", "part#.jpg",
     2 * kMegabyte, 6},
    {"D:\\$Recycle.Bin\\S-1-5-21-1004336348-1177238915-682003330-1001", "$RZ*.avi", 310 * kMegabyte,
     2},

    // Downloaded Programs
    {"C:\\Windows\\Downloaded Program Files", "viewer#.inf", 3 * kKilobyte, 2},
    {"C:\\Windows\\Downloaded Program Files", "viewer.ocx", 480 * kKilobyte},

    // Windows Updates & installer; of the packages only those of no length
    {"C:\\Windows\\SoftwareDistribution\\Download\\1f0c*", "Windows10.0-KB50#-x64.cab",
     46 * kMegabyte, 5},
    {"C:\\Windows\\SoftwareDistribution\\Download", "*c7d9e1b2", 7 * kMegabyte, 3},
    {"C:\\Windows\\Installer\\$PatchCache$\\Managed\\00004109110000000000000000F01FEC\\16.0.4266",
     "file_#.dll", 900 * kKilobyte, 5},
    {"C:\\Windows\\Installer", "4e*.msi", 0, 3},

    // Windows History
    {"C:\\Users\\User\\AppData\\Roaming\\Microsoft\\Windows\\Recent", "Letter #.lnk", 1210, 9},
    {"C:\\Users\\User\\AppData\\Roaming\\Microsoft\\Office\\Recent", "Budget #.LNK", 980, 4},
};

constexpr DemoFiles kCustomJunk[] = {
    {"D:\\Backup\\2024", "accounts-#.bak", 3 * kMegabyte, 6},
    {"D:\\Backup\\2025", "accounts-#.bak", 4 * kMegabyte, 4},
    {"D:\\Backup", "copy*.tmp", 700 * kKilobyte, 3},
};

constexpr DemoFiles kLeftAlone[] = {
    // Never junk, wherever they lie
    {"C:\\Windows\\Temp", "desktop.ini", 174},
    {"C:\\Windows\\Downloaded Program Files", "desktop.ini", 65},
    {"C:\\$Recycle.Bin\\S-1-5-21-1004336348-1177238915-682003330-1001", "desktop.ini", 129},
    // In a folder that the ignore list names
    {"C:\\ProgramData\\Microsoft\\Windows\\WER\\ReportArchive\\AppCrash_ledger.exe_kept",
     "Report.wer", 15 * kKilobyte},
    {"C:\\ProgramData\\Microsoft\\Windows\\WER\\ReportArchive\\AppCrash_ledger.exe_kept",
     "triage.mdmp", 1 * kMegabyte},
    // Queued for removal already
    {"C:\\Windows\\Temp", "queued-earlier.tmp", 512 * kKilobyte},
    // Packages that are in use have a length
    {"C:\\Windows\\Installer", "1a*.msi", 12 * kMegabyte, 3},
    {"C:\\Windows\\Installer", "1a*.msp", 5 * kMegabyte, 2},
    // No log, cache or dump by its name or place
    {"C:\\Windows\\Logs\\CBS", "FilterList.txt", 2 * kKilobyte},
    {"C:\\Windows\\System32", "kernel32.dll", 640 * kKilobyte},
    {"C:\\Windows\\Minidump", "030725-11#-01.dmp", 284 * kKilobyte, 2},
    {"C:\\Windows\\INF", "machine.inf", 88 * kKilobyte},
    {"C:\\Windows\\SoftwareDistribution\\DataStore", "DataStore.edb", 340 * kMegabyte},
    {"C:\\Users\\User\\AppData\\Local\\Microsoft\\Windows\\Explorer", "ExplorerStartupLog.etl",
     90 * kKilobyte},
    {"C:\\Users\\User\\AppData\\Local\\Microsoft\\OneDrive\\logs", "Common.log", 60 * kKilobyte},
    {"C:\\Users\\User\\AppData\\Roaming\\Microsoft\\Windows\\Recent\\AutomaticDestinations",
     "5f7b5f1e01b8*.automaticDestinations-ms", 14 * kKilobyte, 2},
    // Another user's recycle bin
    {"C:\\$Recycle.Bin\\S-1-5-21-1004336348-1177238915-682003330-1002", "$RA*.pdf", 220 * kKilobyte,
     2},
    // Browsers' own data
    {"C:\\Users\\User\\AppData\\Roaming\\Mozilla\\Firefox\\Profiles\\x7k2m9qa.default-release",
     "logins.json", 3 * kKilobyte},
    {"C:\\Users\\User\\AppData\\Roaming\\Mozilla\\Firefox\\Profiles\\x7k2m9qa.default-release",
     "key4.db", 288 * kKilobyte},
    {"C:\\Users\\User\\AppData\\Roaming\\Opera Software\\Opera Stable", "Bookmarks",
     11 * kKilobyte},
    {"C:\\Users\\User\\AppData\\Local\\Mozilla\\Firefox\\Profiles\\x7k2m9qa.default-"
     "release\\safebrowsing",
     "goog-phish.vlpset", 70 * kKilobyte},
    {"C:\\Users\\User\\AppData\\Roaming\\Opera Software\\Opera Stable\\Service Worker", "state",
     1 * kKilobyte},
    {"C:\\Users\\User\\AppData\\Local\\UCBrowser\\User Data_i18n\\Default", "Bookmarks",
     6 * kKilobyte},
    {"C:\\Users\\User\\AppData\\Local\\UCBrowser\\Application\\Default\\Cache", "f_001",
     30 * kKilobyte},
    {"C:\\Users\\User\\AppData\\Local\\BraveSoftware\\Brave-Browser\\User Data\\ShaderCache",
     "index", 256 * kKilobyte},
    {"C:\\Users\\User\\AppData\\Local\\Microsoft\\Feeds", "FeedsStore.feedsdb-ms", 12 * kKilobyte},
    {"C:\\Users\\User\\AppData\\Local\\Google\\Chrome\\User Data\\Default", "History",
     640 * kKilobyte},
    // The custom place takes two patterns only
    {"D:\\Backup\\2025", "accounts.xlsx", 2 * kMegabyte},
    // The user's own
    {"C:\\Users\\User\\Desktop", "Shopping list.txt", 700},
    {"C:\\Users\\User\\Documents", "Letter #.docx", 84 * kKilobyte, 9},
    {"C:\\Users\\User\\Documents", "Taxes 2024.xlsx", 310 * kKilobyte},
    {"C:\\Users\\User\\Documents", "notes.tmp", 2 * kKilobyte},
    {"C:\\Users\\User\\Downloads", "manual.pdf", 3 * kMegabyte},
    {"C:\\Users\\User\\Pictures\\Holiday", "IMG_20#.jpg", 4 * kMegabyte, 8},
    {"D:\\Music", "Track 0#.mp3", 6 * kMegabyte, 6},
};

// The same number for the same text everywhere (FNV-1a).
std::uint32_t number_of(std::string_view text) {
  std::uint32_t number = 2166136261U;
  for (const char c : text) number = (number ^ static_cast<unsigned char>(c)) * 16777619U;
  return number ^ number >> 15U;
}

std::string four_digits(std::uint32_t number) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string digits;
  for (unsigned shift = 0; shift < 16; shift += 4) digits += kDigits[number >> shift & 0xFU];
  return digits;
}

std::string fill_in(std::string_view pattern, int index, std::uint32_t number) {
  std::string text;
  for (const char c : pattern) {
    if (c == '#') {
      text += std::to_string(index);
    } else if (c == '*') {
      text += four_digits(number);
    } else {
      text += c;
    }
  }
  return text;
}

// Some second of the years 2024 and 2025.
FileTime time_from(std::uint32_t number) {
  constexpr std::int64_t kBeginningOf2024 = 133'485'408'000'000'000;
  constexpr std::uint32_t kSeconds = (366 + 365) * 86'400U;
  return {kBeginningOf2024 + std::int64_t{number % kSeconds} * 10'000'000};
}

}  // namespace

std::span<const DemoFiles> demo_junk_of_windows() { return kWindowsJunk; }
std::span<const DemoFiles> demo_junk_of_custom_places() { return kCustomJunk; }
std::span<const DemoFiles> demo_files_left_alone() { return kLeftAlone; }

std::vector<DemoFile> expand_demo_files(const DemoFiles& row, const std::string& root) {
  std::vector<DemoFile> files;
  for (int index = 1; index <= row.count; ++index) {
    const std::string pattern = root + row.folder + "\\" + row.name;
    const std::uint32_t number = number_of(pattern + std::to_string(index));
    // A row of several files varies by a quarter to either side.
    const std::uint64_t bytes = row.count == 1 ? row.bytes : row.bytes * (75 + number % 51) / 100;
    files.push_back({fill_in(pattern, index, number), bytes, time_from(number)});
  }
  return files;
}

}  // namespace quillvane
