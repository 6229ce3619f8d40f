#include "shortcuts/verdict.h"

#include <cstddef>
#include <optional>

#include "platform/name_lookup.h"
#include "support/text.h"

namespace quillvane {

namespace {

bool is_seen_as_file(const FileSystem& files, const LinkContent& shortcut) {
  // Without any target the lookup is one of an empty name, which finds a file of the current
  // folder.
  if (!shortcut.has_target) return true;
  return !shortcut.target.empty() && finds_name(files, shortcut.target, 0);
}

bool is_seen_as_folder(const FileSystem& files, const std::string& target) {
  const auto attributes = files.attributes(target);
  if (!attributes) return false;
  return *attributes != kAttributeFolder || DirectoryExists(files, target);
}

bool is_elsewhere(const Drives& drives, const std::string& target) {
  const std::string root = std::string(Trim(target).substr(0, 1)) + ":\\";
  const DriveType type = drives.type(root);
  return type == DriveType::kRemovable || type == DriveType::kRemote || type == DriveType::kCdRom ||
         target.starts_with("\\\\");
}

// "C:\" or "\\server\share\" of a path on either; nothing for any other text.
std::optional<std::string> root_of(const std::string& path) {
  if (path.size() >= 3 && path[1] == ':' && path[2] == '\\') return path.substr(0, 3);
  if (!path.starts_with("\\\\")) return std::nullopt;
  const std::size_t share = path.find('\\', 2);
  if (share == std::string::npos) return path + "\\";
  const std::size_t end = path.find('\\', share + 1);
  return end == std::string::npos ? path + "\\" : path.substr(0, end + 1);
}

// A drive without a medium may have a root, but it has no room.
bool is_there_now(const Platform& platform, const std::string& root) {
  const bool is_share = root.starts_with("\\\\");
  return platform.files.attributes(root) && (is_share || platform.drives.space(root));
}

}  // namespace

bool DirectoryExists(const FileSystem& files, const std::string& path) {
  if (path.empty() || !finds_name(files, path, kAttributeFolder)) return false;
  const auto attributes = files.attributes(path);
  return attributes && (*attributes & kAttributeFolder) != 0;
}

bool is_broken(const Platform& platform, const LinkContent& shortcut, bool leaves_out_removable) {
  if (is_seen_as_file(platform.files, shortcut)) return false;
  if (is_seen_as_folder(platform.files, shortcut.target)) return false;
  return !leaves_out_removable || !is_elsewhere(platform.drives, shortcut.target);
}

ShortcutFinding judge_shortcut(const Platform& platform, const LinkContent& shortcut) {
  const auto root = shortcut.has_target ? root_of(shortcut.target) : std::nullopt;
  if (!root) return {ShortcutVerdict::kNotAFile, shortcut.target};
  if (platform.files.attributes(shortcut.target) || !is_broken(platform, shortcut, false)) {
    return {ShortcutVerdict::kPresent, shortcut.target};
  }
  if (!is_there_now(platform, *root)) return {ShortcutVerdict::kUnreachable, *root};
  // Rights that are missing, or a disk that fails, are no proof that nothing is there.
  const bool is_gone = platform.files.read_file(shortcut.target).is_missing();
  return {is_gone ? ShortcutVerdict::kMissing : ShortcutVerdict::kUnreachable, shortcut.target};
}

const char* verdict_text(ShortcutVerdict verdict) {
  switch (verdict) {
    case ShortcutVerdict::kPresent:
      return "present";
    case ShortcutVerdict::kMissing:
      return "missing";
    case ShortcutVerdict::kUnreachable:
      return "unreachable";
    case ShortcutVerdict::kNotAFile:
      break;
  }
  return "not a file";
}

}  // namespace quillvane
