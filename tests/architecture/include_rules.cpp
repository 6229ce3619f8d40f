#include "tests/architecture/include_rules.h"

#include <algorithm>
#include <iterator>
#include <optional>

namespace quillvane {

namespace {

// One row a folder: it includes itself and what its row names, all of it further down.
struct Row {
  std::string_view folder;
  std::string_view includes;     // folders, a blank between them
  bool uses_the_system = false;  // headers of the system and of libraries
};

constexpr Row kRows[] = {
    {"app",
     "view/win32 view/console core forms machine support platform/folder platform/pictures "
     "platform/virtual platform/win32 platform",
     true},
    {"view/win32", "core scan forms controls support platform/win32 platform", true},
    {"view/console",
     "core shortcuts cleaning categories drivesearch scan lang forms controls support "
     "platform/virtual platform",
     true},
    {"core",
     "shortcuts cleaning categories drivesearch dialogs scan lang controls forms support platform"},
    {"shortcuts",
     "cleaning categories drivesearch dialogs scan lang controls forms support platform"},
    {"cleaning", "categories drivesearch dialogs scan lang controls forms support platform"},
    {"categories", "drivesearch dialogs scan lang controls forms support platform"},
    {"drivesearch", "dialogs scan lang controls forms support platform"},
    {"dialogs", "scan lang controls forms support platform"},
    {"scan", "lang controls forms support platform"},
    {"lang", "controls forms support platform"},
    {"controls", "forms support platform"},
    {"forms", "support platform"},
    {"machine", "platform/folder support platform"},
    {"platform/folder/win32", "platform/folder platform/win32 support platform", true},
    {"platform/folder", "platform/virtual support platform", true},
    {"platform/pictures", "platform", true},
    {"platform/win32", "support platform", true},
    {"platform/virtual", "platform"},
    {"support", "platform"},
    {"platform", ""},
};

constexpr bool names(std::string_view folders, std::string_view folder) {
  while (!folders.empty()) {
    const std::string_view first = folders.substr(0, folders.find(' '));
    if (first == folder) return true;
    folders.remove_prefix(std::min(folders.size(), first.size() + 1));
  }
  return false;
}

// Whether each row names rows below itself alone.
constexpr bool arrows_point_down() {
  for (const Row* row = std::begin(kRows); row != std::end(kRows); ++row) {
    for (const Row* other = std::begin(kRows); other <= row; ++other) {
      if (names(row->includes, other->folder)) return false;
    }
  }
  return true;
}
static_assert(arrows_point_down());

// Folders of platform/ are rows of their own; below other folders the whole branch is one row where
// no folder of it stands in the list before.
bool is_in(std::string_view file, std::string_view folder) {
  if (file.size() <= folder.size() || !file.starts_with(folder) || file[folder.size()] != '/') {
    return false;
  }
  return folder != "platform" || file.find('/', folder.size() + 1) == std::string_view::npos;
}

const Row* row_of(std::string_view file) {
  const auto* row = std::find_if(std::begin(kRows), std::end(kRows),
                                 [file](const Row& r) { return is_in(file, r.folder); });
  return row == std::end(kRows) ? nullptr : row;
}

template <typename Act>
void for_each_line(std::string_view content, Act act) {
  while (!content.empty()) {
    const std::string_view line = content.substr(0, content.find('\n'));
    content.remove_prefix(std::min(content.size(), line.size() + 1));
    act(line);
  }
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

bool may_include(const Row& row, std::string_view header) {
  const Row* other = row_of(header);
  return other != nullptr && (other == &row || names(row.includes, other->folder));
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

std::string broken_by_include(const Row& row, std::string_view file, const Include& include,
                              bool is_test) {
  if (include.is_ours) {
    return is_test || may_include(row, include.name) ? "" : "includes what lies above it";
  }
  if (is_of_windows(include.name) && !may_know_windows(file)) return "includes Windows' own header";
  if (is_standard(include.name) || row.uses_the_system || is_test) return "";
  return "includes a header of the system or of a library";
}

}  // namespace

std::string_view folder_of(std::string_view file) {
  const Row* row = row_of(file);
  return row == nullptr ? std::string_view() : row->folder;
}

std::vector<std::string_view> own_includes(std::string_view content) {
  std::vector<std::string_view> headers;
  for_each_line(content, [&](std::string_view line) {
    const auto include = include_of(line);
    if (include && include->is_ours) headers.push_back(include->name);
  });
  return headers;
}

std::vector<std::string> broken_rules(std::string_view file, std::string_view content) {
  const Row* row = row_of(file);
  if (row == nullptr) return {std::string(file) + " lies in no row"};
  const bool is_test = file.ends_with("_test.cpp");
  std::vector<std::string> broken;
  for_each_line(content, [&](std::string_view line) {
    std::string rule;
    if (const auto include = include_of(line)) {
      rule = broken_by_include(*row, file, *include, is_test);
    } else if (line.find("_WIN32") != std::string_view::npos && line.starts_with("#")) {
      rule = "asks for the system it is built for";
    }
    if (!rule.empty()) broken.push_back(std::string(file) + " " + rule + ": " + std::string(line));
  });
  return broken;
}

}  // namespace quillvane
