#include "machine/demo_files.h"

namespace quillvane {

namespace {

constexpr std::uint64_t kKilobyte = 1024;
constexpr std::uint64_t kMegabyte = 1024 * kKilobyte;

constexpr DemoFiles kBrowserJunk[] = {
    // Internet Explorer; what its cache lists lies elsewhere
    {"C:\\Users\\User\\AppData\\Local\\Microsoft\\Windows\\Temporary Internet Files\\Low",
     "page*.htm", 44 * kKilobyte, 5},
    {"C:\\Users\\User\\AppData\\Local\\Microsoft\\Feeds Cache\\8KQ2XW1T", "feed#.xml",
     12 * kKilobyte, 3},

    // Firefox: history, bookmarks and the saved session are on its list
    {"C:\\Users\\User\\AppData\\Local\\Mozilla\\Firefox\\Profiles\\x7k2m9qa.default-release\\"
     "cache2\\entries",
     "9C2A7F01D3E84B5566*", 120 * kKilobyte, 14},
    {"C:\\Users\\User\\AppData\\Local\\Mozilla\\Firefox\\Profiles\\x7k2m9qa.default-release\\"
     "thumbnails",
     "*8a77c0de.png", 28 * kKilobyte, 4},
    {"C:\\Users\\User\\AppData\\Local\\Mozilla\\Firefox\\Profiles\\x7k2m9qa.default-release\\"
     "startupCache",
     "startupCache.8.little", 6 * kMegabyte},
    {"C:\\Users\\User\\AppData\\Local\\Mozilla\\Firefox\\Profiles\\x7k2m9qa.default-release\\"
     "jumpListCache",
     "*icon.ico", 5 * kKilobyte, 3},
    {"C:\\Users\\User\\AppData\\Roaming\\Mozilla\\Firefox\\Profiles\\x7k2m9qa.default-release\\"
     "cache2\\entries",
     "0B3D5E77A1C2490F1E#*", 96 * kKilobyte, 2},
    {"C:\\Users\\User\\AppData\\Roaming\\Mozilla\\Firefox\\Profiles\\x7k2m9qa.default-release",
     "places.sqlite", 10 * kMegabyte},
    {"C:\\Users\\User\\AppData\\Roaming\\Mozilla\\Firefox\\Profiles\\x7k2m9qa.default-release",
     "sessionCheckpoints.json", 288},
    {"C:\\Users\\User\\AppData\\Roaming\\Mozilla\\Firefox\\Profiles\\x7k2m9qa.default-release",
     "sessionstore.jsonlz4", 64 * kKilobyte},

    // Opera; the first place is reached through the junction "Local Settings"
    {"C:\\Users\\User\\AppData\\Local\\Opera Software\\Opera Stable\\Cache", "f_00#",
     77 * kKilobyte, 8},
    {"C:\\Users\\User\\AppData\\Roaming\\Opera Software\\Opera Stable", "Favicons-journal",
     16 * kKilobyte},
    {"C:\\Users\\User\\AppData\\Roaming\\Opera Software\\Opera Stable", "oprand#.tmp",
     3 * kKilobyte, 2},
    {"C:\\Users\\User\\AppData\\Roaming\\Opera Software\\Opera Stable\\GPUCache", "data_#",
     264 * kKilobyte, 3},

    {"C:\\Users\\User\\AppData\\Roaming\\Opera Software\\Opera Stable\\ShaderCache\\GPUCache",
     "data_#", 256 * kKilobyte, 2},
    {"C:\\Users\\User\\AppData\\Roaming\\Opera Software\\Opera Stable\\Service "
     "Worker\\CacheStorage\\"
     "7d41c0",
     "*e1f0_0", 110 * kKilobyte, 2},
    {"C:\\Users\\User\\AppData\\Roaming\\Opera Software\\Opera Stable\\Service Worker\\ScriptCache",
     "index", 24 * kKilobyte},
    {"C:\\Users\\User\\AppData\\Roaming\\Opera Software\\Opera Stable\\Service Worker\\Database",
     "000003.log", 18 * kKilobyte},
    {"C:\\Users\\User\\AppData\\Roaming\\Opera Software\\Opera Stable\\Service Worker\\Origins",
     "MANIFEST-000001", 2 * kKilobyte},
    {"C:\\Users\\User\\AppData\\Roaming\\Opera Software\\Opera Stable\\File System\\000\\t\\00",
     "0000000#", 90 * kKilobyte, 2},

    // UC Browser
    {"C:\\Users\\User\\AppData\\Local\\UCBrowser\\User Data_i18n\\Default\\Cache", "f_00#",
     58 * kKilobyte, 7},
    {"C:\\Users\\User\\AppData\\Local\\UCBrowser\\User Data\\Default\\Cache", "f_00#",
     41 * kKilobyte, 2},
    {"C:\\Users\\User\\AppData\\Local\\UCBrowser\\User Data_i18n\\Default", "Cookies-journal",
     12 * kKilobyte},
    {"C:\\Users\\User\\AppData\\Local\\UCBrowser\\Update", "patch*.tmp", 2 * kMegabyte, 2},

    // Chrome has places of its own beside those that all share.
    {"C:\\Users\\User\\AppData\\Local\\Google\\Chrome\\User Data\\Default\\File System\\000\\t\\00",
     "0000000#", 150 * kKilobyte, 3},
    {"C:\\Users\\User\\AppData\\Local\\Google\\Chrome\\User Data\\PnaclTranslationCache", "data_#",
     256 * kKilobyte, 2},
    {"C:\\Users\\User\\AppData\\Local\\Google\\Chrome\\User Data\\ShaderCache", "index",
     256 * kKilobyte},
    {"C:\\Users\\User\\AppData\\Local\\Google\\Chrome\\User Data\\Profile 1\\Cache", "f_00#",
     66 * kKilobyte, 5},
    {"C:\\Users\\User\\AppData\\Local\\Google\\Chrome\\User Data\\Default", "scoped_dir*.tmp",
     1 * kKilobyte, 2},
    // Edge takes the state of extensions and of the session.
    {"C:\\Users\\User\\AppData\\Local\\Microsoft\\Edge\\User Data\\Default\\Extension State",
     "00000#.log", 22 * kKilobyte, 2},
    {"C:\\Users\\User\\AppData\\Local\\Microsoft\\Edge\\User Data\\Default\\Session Storage",
     "00000#.ldb", 31 * kKilobyte, 2},
    // Torch, Maxthon and Yandex take temporary files from the whole profile, as Chrome does.
    {"C:\\Users\\User\\AppData\\Local\\Torch\\User Data\\Default", "scoped_dir*.tmp", 1 * kKilobyte,
     2},
    {"C:\\Users\\User\\AppData\\Local\\Maxthon\\Application\\User Data\\Default", "scoped_dir*.tmp",
     1 * kKilobyte, 2},
    {"C:\\Users\\User\\AppData\\Local\\Yandex\\YandexBrowser\\User Data\\Default",
     "scoped_dir*.tmp", 1 * kKilobyte},
    // Vivaldi and Yandex take the history.
    {"C:\\Users\\User\\AppData\\Local\\vivaldi\\User Data\\Default", "History", 448 * kKilobyte},
    {"C:\\Users\\User\\AppData\\Local\\vivaldi\\User Data\\Default", "Visited Links",
     128 * kKilobyte},
    {"C:\\Users\\User\\AppData\\Local\\vivaldi\\User Data\\Default", "Top Sites", 80 * kKilobyte},
    {"C:\\Users\\User\\AppData\\Local\\vivaldi\\User Data\\Default", "Network Action Predictor",
     44 * kKilobyte},
    {"C:\\Users\\User\\AppData\\Local\\Yandex\\YandexBrowser\\User Data\\Default", "Top Sites",
     76 * kKilobyte},
    {"C:\\Users\\User\\AppData\\Local\\Yandex\\YandexBrowser\\User Data\\Default",
     "Network Action Predictor", 36 * kKilobyte},
    {"C:\\Users\\User\\AppData\\Local\\Yandex\\YandexBrowser\\User Data\\Default", "Visited Links",
     128 * kKilobyte},
    {"C:\\Users\\User\\AppData\\Local\\Yandex\\YandexBrowser\\User Data\\Default", "History",
     384 * kKilobyte},
    {"C:\\Users\\User\\AppData\\Local\\Yandex\\YandexBrowser\\User Data\\Default",
     "History Provider Cache", 9 * kKilobyte},
};

constexpr DemoBrowser kBrowsers[] = {
    {"Software\\Google\\Chrome\\PreferenceMACs", "\\AppData\\Local\\Google\\Chrome\\User Data"},
    {"Software\\Microsoft\\Edge\\PreferenceMACs", "\\AppData\\Local\\Microsoft\\Edge\\User Data"},
    {"Software\\BraveSoftware\\Brave-Browser\\PreferenceMACs",
     "\\AppData\\Local\\BraveSoftware\\Brave-Browser\\User Data"},
    {"Software\\vivaldi\\PreferenceMACs", "\\AppData\\Local\\vivaldi\\User Data"},
    {"Software\\Torch\\PreferenceMACs", "\\AppData\\Local\\Torch\\User Data"},
    {"Software\\Maxthon\\PreferenceMACs", "\\AppData\\Local\\Maxthon\\Application\\User Data"},
    {"Software\\Yandex\\YandexBrowser\\PreferenceMACs",
     "\\AppData\\Local\\Yandex\\YandexBrowser\\User Data"},
};

constexpr DemoFiles kJunkOfEachBrowser[] = {
    {"\\Default\\Cache", "f_0000#", 92 * kKilobyte, 8},
    {"\\Default\\Cache", "data_#", 264 * kKilobyte, 3},
    {"\\Default", "Cookies-journal", 12 * kKilobyte},
    {"\\Default\\Service Worker\\CacheStorage", "*e1f0_0", 130 * kKilobyte, 3},
    {"\\Default\\JumpListIconsTopSites", "*.tmp", 3 * kKilobyte, 2},
    {"\\Default\\JumpListIconsRecentClosed", "*.tmp", 3 * kKilobyte},
    {"\\Default\\Storage\\ext\\nmmhkkegccagdldgiimedpiccmgmieda\\def\\GPUCache", "data_#",
     8 * kKilobyte, 2},
    {"\\Default\\GPUCache", "data_#", 264 * kKilobyte, 2},
    {"\\ShaderCache\\GPUCache", "data_#", 256 * kKilobyte, 2},
};

constexpr DemoFiles kLeftAloneInEachBrowser[] = {
    {"\\Default", "Bookmarks", 14 * kKilobyte},
    {"\\Default", "Login Data", 40 * kKilobyte},
    {"\\Default", "Preferences", 52 * kKilobyte},
    {"\\Default\\Code Cache\\js", "*c41b_0", 18 * kKilobyte},
    {"\\Default\\JumpListIcons", "*.ico", 4 * kKilobyte},
    {"\\Default\\Local Storage\\leveldb", "000005.ldb", 36 * kKilobyte},
    {"\\Default\\Extensions\\aapocclcgogkmnckokdopfmhonfmgoek\\0.10_0", "manifest.json",
     1 * kKilobyte},
    // A profile that the registry does not name
    {"\\Guest Profile\\Cache", "f_00001", 20 * kKilobyte},
    {"", "Local State", 60 * kKilobyte},
};

}  // namespace

std::span<const DemoFiles> demo_junk_of_browsers() { return kBrowserJunk; }
std::span<const DemoBrowser> demo_browsers() { return kBrowsers; }
std::span<const DemoFiles> demo_junk_of_each_browser() { return kJunkOfEachBrowser; }
std::span<const DemoFiles> demo_files_left_alone_in_each_browser() {
  return kLeftAloneInEachBrowser;
}

}  // namespace quillvane
