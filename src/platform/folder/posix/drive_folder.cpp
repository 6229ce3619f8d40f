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

#include "platform/file_system.h"
#include "platform/folder/posix/ntfs_disk.h"

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

// `known` is a place beside which this one was found: mostly both lie on the same disk.
void settle_beside(HostPlace& place, const HostStatus& known, bool known_on_ntfs) {
  const bool same_disk = place.status.stx_dev_major == known.stx_dev_major &&
                         place.status.stx_dev_minor == known.stx_dev_minor;
  place.on_ntfs = same_disk ? known_on_ntfs : lies_on_ntfs(place.object.number());
  if (!place.on_ntfs || !is_link(place.status)) return;
  const NtfsObject object(place.object.number());
  if (object.link().kind != NtfsLink::Kind::kNone) return;
  // The host knows no tags but those of links, and shows all others as links that lead nowhere.
  const bool folder = (object.attributes().value_or(0) & kAttributeFolder) != 0;
  const unsigned kind = folder ? S_IFDIR : S_IFREG;
  place.status.stx_mode =
      static_cast<decltype(place.status.stx_mode)>((place.status.stx_mode & ~S_IFMT) | kind);
}

std::string with_slashes(std::string path) {
  std::replace(path.begin(), path.end(), '\\', '/');
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
    return link ? follow(*next) : next.has_value();
  }

  bool follow(const HostPlace& link) {
    if (++links_ > kMostLinks) return leads_nowhere();
    if (link.on_ntfs) return follow(NtfsObject(link.object.number()).link());
    const auto target = read_link(link.object.number());
    if (!target) return false;
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

  bool follow(const NtfsLink& link) {
    const bool own_drive = link.kind == NtfsLink::Kind::kOnDrive && link.letter == drive_.letter_;
    const bool from_root = own_drive || link.kind == NtfsLink::Kind::kOwnRoot;
    if (!from_root && link.kind != NtfsLink::Kind::kRelative) return leads_nowhere();
    push_names(with_slashes(link.target), still_to_go_);
    return !from_root || start_again("");
  }

  const DriveFolder& drive_;
  HostPlace here_;
  std::vector<std::string> still_to_go_;
  int links_ = 0;
};

DriveFolder::DriveFolder(const std::string& host_folder, char letter,
                         std::shared_ptr<NameIndex> names)
    : host_folder_(host_folder),
      letter_(letter),
      folder_(open(host_folder.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC)),
      error_(folder_.is_open() ? 0 : errno),
      names_(std::move(names)) {
  if (folder_.is_open() && read_status(folder_.number(), status_)) {
    on_ntfs_ = lies_on_ntfs(folder_.number());
  }
}

void DriveFolder::settle(HostPlace& place) const { settle_beside(place, status_, on_ntfs_); }

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
  settle(place);
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
  settle(*place);
  return place;
}

std::optional<HostPlace> DriveFolder::find_as_stored(const std::string& path) const {
  if (path.empty()) return root();
  HostPlace place{path, open_at_once(folder_.number(), path), {}};
  if (!place.object.is_open() || !read_status(place.object.number(), place.status)) {
    return std::nullopt;
  }
  settle(place);
  if (is_link(place.status)) return std::nullopt;
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
  settle_beside(place, entry.folder.status, entry.folder.on_ntfs);
  return place;
}

FileTime created_time(const HostPlace& place) {
  const auto stored = place.on_ntfs ? NtfsObject(place.object.number()).created() : std::nullopt;
  return stored.value_or(created_time(place.status));
}

Descriptor open_for_listing(const HostPlace& place) {
  return Descriptor(
      openat(place.object.number(), ".", O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
}

}  // namespace quillvane
