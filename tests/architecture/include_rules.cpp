#include "tests/architecture/include_rules.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <span>

namespace quillvane {

namespace {

// Folders of behaviour, which know no view and no particular platform.
constexpr std::string_view kPlatform[] = {"platform"};
constexpr std::string_view kSupport[] = {"support", "platform"};
constexpr std::string_view kForms[] = {"forms", "controls", "support", "platform"};
constexpr std::string_view kBehaviour[] = {"core",    "categories", "cleaning",  "drivesearch",
                                           "dialogs", "scan",       "shortcuts", "lang",
                                           "forms",   "controls",   "support",   "platform"};
constexpr std::string_view kVirtual[] = {"platform/virtual", "platform"};
constexpr std::string_view kWin32[] = {"platform/win32", "support", "platform"};
constexpr std::string_view kFolder[] = {"platform/folder", "platform/virtual", "support",
                                        "platform"};
constexpr std::string_view kFolderOnWindows[] = {"platform/folder", "platform/win32", "support",
                                                 "platform"};
constexpr std::string_view kConsole[] = {
    "view/console", "platform/virtual", "core",    "categories", "cleaning",
    "drivesearch",  "dialogs",          "scan",    "shortcuts",  "lang",
    "forms",        "controls",         "support", "platform"};
constexpr std::string_view kWindows[] = {
    "view/win32", "platform/win32", "core", "categories", "cleaning", "drivesearch", "dialogs",
    "scan",       "shortcuts",      "lang", "forms",      "controls", "support",     "platform"};

struct Layer {
  std::string_view folder;
  std::span<const std::string_view> includes;  // folders it may include; empty: all
  bool uses_the_system;                        // headers of the system and of libraries
};

constexpr Layer kLayers[] = {
    {"platform", kPlatform, false},
    {"platform/virtual", kVirtual, false},
    {"platform/win32", kWin32, true},
    {"platform/folder/win32", kFolderOnWindows, true},
    {"platform/folder", kFolder, true},
    {"support", kSupport, false},
    {"forms", kForms, false},
    {"controls", kForms, false},
    {"core", kBehaviour, false},
    {"categories", kBehaviour, false},
    {"cleaning", kBehaviour, false},
    {"drivesearch", kBehaviour, false},
    {"dialogs", kBehaviour, false},
    {"scan", kBehaviour, false},
    {"shortcuts", kBehaviour, false},
    {"lang", kBehaviour, false},
    {"view/console", kConsole, true},
    {"view/win32", kWindows, true},
    {"app", {}, true},
};

// Folders of platform/ are layers of their own; below other folders the whole branch is one layer
// where no folder of it stands in the list before.
bool is_in(std::string_view file, std::string_view folder) {
  if (file.size() <= folder.size() || !file.starts_with(folder) || file[folder.size()] != '/') {
    return false;
  }
  return folder != "platform" || file.find('/', folder.size() + 1) == std::string_view::npos;
}

const Layer* layer_of(std::string_view file) {
  const auto* layer = std::find_if(std::begin(kLayers), std::end(kLayers),
                                   [file](const Layer& l) { return is_in(file, l.folder); });
  return layer == std::end(kLayers) ? nullptr : layer;
}

struct Include {
  std::string_view name;
  bool is_ours;
};

std::optional<Include> include_of(std::string_view line) {
  constexpr std::string_view kDirective = "#include ";
  if (!line.starts_with(kDirective)) return std::nullopt;
  const std::string_view rest = line.substr(kDirective.size());
  const bool is_ours = rest.starts_with('"');
  const std::size_t end = rest.find(is_ours ? '"' : '>', 1);
  if (end == std::string_view::npos) return std::nullopt;
  return Include{rest.substr(1, end - 1), is_ours};
}

// The standard library's headers have neither folder nor extension.
bool is_standard(std::string_view header) {
  return header.find_first_of("/.") == std::string_view::npos;
}

bool may_include(const Layer& layer, std::string_view header) {
  return layer.includes.empty() ||
         std::any_of(layer.includes.begin(), layer.includes.end(),
                     [header](std::string_view folder) { return is_in(header, folder); });
}

bool is_of_windows(std::string_view header) {
  constexpr std::string_view kHeaders[] = {"windows.h",  "winioctl.h", "commctrl.h", "shlobj.h",
                                           "shellapi.h", "tlhelp32.h", "wininet.h",  "windowsx.h"};
  return std::find(std::begin(kHeaders), std::end(kHeaders), header) != std::end(kHeaders);
}

bool may_know_windows(std::string_view file) {
  return file.starts_with("platform/win32/") || file.starts_with("view/win32/") ||
         file.starts_with("platform/folder/win32/") ||
         (file.starts_with("app/") && file.find("_win32") != std::string_view::npos);
}

std::string broken_by_include(const Layer& layer, std::string_view file, const Include& include,
                              bool is_test) {
  if (include.is_ours) {
    return is_test || may_include(layer, include.name) ? "" : "includes what lies above it";
  }
  if (is_of_windows(include.name) && !may_know_windows(file)) return "includes Windows' own header";
  if (is_standard(include.name) || layer.uses_the_system || is_test) return "";
  return "includes a header of the system or of a library";
}

}  // namespace

std::vector<std::string> broken_rules(std::string_view file, std::string_view content) {
  const Layer* layer = layer_of(file);
  if (layer == nullptr) return {std::string(file) + " lies in no layer"};
  const bool is_test = file.ends_with("_test.cpp");
  std::vector<std::string> broken;
  while (!content.empty()) {
    const std::string_view line = content.substr(0, content.find('\n'));
    content.remove_prefix(std::min(content.size(), line.size() + 1));
    std::string rule;
    if (const auto include = include_of(line)) {
      rule = broken_by_include(*layer, file, *include, is_test);
    } else if (line.find("_WIN32") != std::string_view::npos && line.starts_with("#")) {
      rule = "asks for the system it is built for";
    }
    if (!rule.empty()) broken.push_back(std::string(file) + " " + rule + ": " + std::string(line));
  }
  return broken;
}

}  // namespace quillvane
