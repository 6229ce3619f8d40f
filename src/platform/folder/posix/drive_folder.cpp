#include "platform/folder/posix/drive_folder.h"

#include <fcntl.h>
#include <limits.h>
#include <linux/openat2.h>
#include <stdlib.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <iterator>
#include <memory>

namespace quillvane {

namespace {

constexpr int kMostLinks = 40;
constexpr int kFindFlags = O_PATH | O_NOFOLLOW | O_CLOEXEC;

// The whole path in one call of the kernel.
Descriptor open_at_once(int folder, const std::string& path) {
  open_how how{};
  how.flags = kFindFlags;
  how.resolve = RESOLVE_BENEATH | RESOLVE_NO_SYMLINKS | RESOLVE_NO_MAGICLINKS;
  return Descriptor(static_cast<int>(syscall(SYS_openat2, folder, path.c_str(), &how, sizeof how)));
}

std::optional<std::string> read_link(int link) {
  std::array<char, PATH_MAX> target;
  const ssize_t length = readlinkat(link, "", target.data(), target.size());
  if (length < 0) return std::nullopt;
  if (length == 0 || static_cast<std::size_t>(length) == target.size()) return missing();
  return std::string(target.data(), static_cast<std::size_t>(length));
}

// Puts the names of a host path before those that are still to be gone, last name first.
void push_names(std::string_view path, std::vector<std::string>& still_to_go) {
  while (!path.empty()) {
    const std::size_t slash = path.rfind('/');
    const std::size_t begin = slash == std::string_view::npos ? 0 : slash + 1;
    if (begin < path.size()) still_to_go.emplace_back(path.substr(begin));
    path = path.substr(0, begin == 0 ? 0 : slash);
  }
}

std::string without_links(const std::string& host_folder) {
  const std::unique_ptr<char, decltype(&free)> path(realpath(host_folder.c_str(), nullptr), &free);
  return path ? path.get() : host_folder;
}

// What follows `folder` in a host path that lies in it; nothing when it does not.
std::optional<std::string_view> part_below(std::string_view path, std::string_view folder) {
  while (folder.ends_with('/')) folder.remove_suffix(1);
  if (!path.starts_with(folder)) return std::nullopt;
  path.remove_prefix(folder.size());
  if (!path.empty() && path[0] != '/') return std::nullopt;
  return path;
}

}  // namespace

// One way down from the drive's folder: where it has come to, and the names still to go.
class DriveFolder::Way {
 public:
  Way(const DriveFolder& drive, HostPlace start) : drive_(drive), here_(std::move(start)) {}

  [[nodiscard]] std::optional<HostPlace> go(std::vector<std::string> last_name_first) {
    still_to_go_ = std::move(last_name_first);
    while (!still_to_go_.empty()) {
      const std::string name = std::move(still_to_go_.back());
      still_to_go_.pop_back();
      if (!(name == ".." ? up() : name == "." || down(name))) return std::nullopt;
    }
    return std::move(here_);
  }

 private:
  static bool leads_nowhere() {
    errno = ENOENT;
    return false;
  }

  // Above the drive's folder a way leads nowhere.
  bool up() {
    if (here_.path.empty() || !is_folder(here_.status)) return leads_nowhere();
    const std::size_t slash = here_.path.rfind('/');
    return start_again(slash == std::string::npos ? "" : here_.path.substr(0, slash));
  }

  bool start_again(const std::string& path) {
    auto place = drive_.find_stored(path);
    if (!place) return false;
    here_ = std::move(*place);
    return true;
  }

  bool down(const std::string& name) {
    if (!is_folder(here_.status)) return leads_nowhere();
    auto stored = stored_name(here_.object.number(), name, *drive_.names_);
    if (!stored) return false;
    HostEntry entry{std::move(here_), std::move(*stored)};
    auto next = open_entry(entry);
    const bool link = next && is_link(next->status);
    here_ = link || !next ? std::move(entry.folder) : std::move(*next);
    return link ? follow(next->object.number()) : next.has_value();
  }

  bool follow(int link) {
    const auto target = read_link(link);
    if (!target) return false;
    if (++links_ > kMostLinks) return leads_nowhere();
    if (!target->starts_with('/')) {
      push_names(*target, still_to_go_);
      return true;
    }
    auto below = part_below(*target, drive_.host_folder_);
    if (!below) below = part_below(*target, without_links(drive_.host_folder_));
    if (!below) return leads_nowhere();
    push_names(*below, still_to_go_);
    return start_again("");
  }

  const DriveFolder& drive_;
  HostPlace here_;
  std::vector<std::string> still_to_go_;
  int links_ = 0;
};

DriveFolder::DriveFolder(const std::string& host_folder, std::shared_ptr<NameIndex> names)
    : host_folder_(host_folder),
      folder_(open(host_folder.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC)),
      error_(folder_.is_open() ? 0 : errno),
      names_(std::move(names)) {}

std::optional<HostPlace> DriveFolder::root() const {
  if (!folder_.is_open()) {
    errno = error_;
    return std::nullopt;
  }
  HostPlace place;
  place.object = Descriptor(fcntl(folder_.number(), F_DUPFD_CLOEXEC, 0));
  if (!place.object.is_open() || !read_status(place.object.number(), place.status)) {
    return std::nullopt;
  }
  return place;
}

std::optional<HostPlace> DriveFolder::find_stored(const std::string& path) const {
  auto place = root();
  std::vector<std::string> names;
  push_names(path, names);
  for (; place && !names.empty(); names.pop_back()) {
    place->object = Descriptor(openat(place->object.number(), names.back().c_str(), kFindFlags));
    if (!place->object.is_open()) return std::nullopt;
  }
  if (!place || !read_status(place->object.number(), place->status)) return std::nullopt;
  place->path = path;
  return place;
}

std::optional<HostPlace> DriveFolder::find_as_stored(const std::string& path) const {
  if (path.empty()) return root();
  HostPlace place{path, open_at_once(folder_.number(), path), {}};
  if (!place.object.is_open() || !read_status(place.object.number(), place.status) ||
      is_link(place.status)) {
    return std::nullopt;
  }
  return place;
}

std::optional<HostPlace> DriveFolder::find(std::span<const std::string> names) const {
  if (names.empty()) return root();
  // Most paths are spelt as stored.
  if (auto place = find_as_stored(joined_names(names))) return place;
  // What is missing or spelt otherwise mostly is so in its last name only.
  auto folder = find(names.first(names.size() - 1));
  if (!folder) return std::nullopt;
  return Way(*this, std::move(*folder)).go({names.back()});
}

std::optional<HostEntry> DriveFolder::find_entry(std::span<const std::string> names) const {
  if (names.empty()) return missing();
  auto folder = find(names.first(names.size() - 1));
  if (!folder) return std::nullopt;
  if (!is_folder(folder->status)) return missing();
  auto name = stored_name(folder->object.number(), names.back(), *names_);
  if (!name) return std::nullopt;
  return HostEntry{std::move(*folder), std::move(*name)};
}

std::optional<HostEntry> DriveFolder::entry_of(const HostPlace& place) const {
  if (place.path.empty()) return missing();
  const std::size_t slash = place.path.rfind('/');
  const std::size_t name = slash == std::string::npos ? 0 : slash + 1;
  auto folder = find_stored(place.path.substr(0, name == 0 ? 0 : slash));
  if (!folder) return std::nullopt;
  return HostEntry{std::move(*folder), place.path.substr(name)};
}

std::optional<HostPlace> DriveFolder::follow(const std::string& path,
                                             const std::string& name) const {
  auto start = find_stored(path);
  if (!start) return std::nullopt;
  return Way(*this, std::move(*start)).go({name});
}

std::string joined_names(std::span<const std::string> names) {
  std::string path;
  for (const std::string& name : names) {
    if (!path.empty()) path += '/';
    path += name;
  }
  return path;
}

std::optional<HostPlace> open_entry(const HostEntry& entry) {
  const int folder = entry.folder.object.number();
  HostPlace place;
  place.object = Descriptor(openat(folder, entry.name.c_str(), kFindFlags));
  if (!place.object.is_open() || !read_status(place.object.number(), place.status)) {
    return std::nullopt;
  }
  place.path = entry.folder.path.empty() ? entry.name : entry.folder.path + "/" + entry.name;
  return place;
}

Descriptor open_for_listing(const HostPlace& place) {
  return Descriptor(
      openat(place.object.number(), ".", O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
}

}  // namespace quillvane
