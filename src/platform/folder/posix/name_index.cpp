#include "platform/folder/posix/name_index.h"

#include <fcntl.h>

#include <cerrno>
#include <string_view>

#include "platform/folder/posix/descriptor.h"

namespace quillvane {

namespace {

bool is_known_kind(const HostStatus& status) {
  return is_file(status) || is_folder(status) || is_link(status);
}

}  // namespace

std::optional<std::string> NameIndex::other_case(int folder, const std::string& name) {
  const std::lock_guard lock(mutex_);
  catch_up();
  HostStatus status;
  if (!read_status(folder, status)) return std::nullopt;
  if (!is_folder(status)) return missing();
  if (forgotten_.contains({HostIdentity::of(status), name})) return missing();

  const FolderNames* names = known_names(folder);
  const Folder* entry = entry_of(folder);
  std::optional<FolderNames> read_now;
  if (names == nullptr || entry == nullptr || entry->watch < 0) {
    read_now = read_names(folder);
    if (!read_now) return std::nullopt;
    names = &*read_now;
  }
  errno = ENOENT;
  for (std::string& other : names->others(name)) {
    // Names that went are not told; who looks sees it.
    if (!read_status(folder, other.c_str(), status)) {
      if (!means_missing(errno)) return std::nullopt;
    } else if (is_known_kind(status)) {
      return std::move(other);
    }
  }
  return missing();
}

void NameIndex::forget_if_twin(int folder, const std::string& name, const std::string& spelt) {
  const std::lock_guard lock(mutex_);
  catch_up();
  const FolderNames* names = known_names(folder);
  if (names == nullptr || !names->has_twins() || names->others(name).empty()) return;
  HostStatus status;
  if (!read_status(folder, status)) return;
  forgotten_.insert({HostIdentity::of(status), name});
  forgotten_.insert({HostIdentity::of(status), spelt});
}

NameIndex::State NameIndex::state() {
  const std::lock_guard lock(mutex_);
  catch_up();
  return state_;
}

bool NameIndex::watch(int folder) {
  const std::lock_guard lock(mutex_);
  const Folder* entry = entry_of(folder);
  return entry != nullptr && entry->watch >= 0;
}

void NameIndex::catch_up() {
  if (!watch_.take([this](const FolderChange& change) { take_in(change); })) give_up();
}

void NameIndex::take_in(const FolderChange& change) {
  if (change.kind == FolderChange::Kind::kUnknown) {
    give_up();
    return;
  }
  const bool is_new_name = change.kind == FolderChange::Kind::kNewName;
  ++(is_new_name ? state_.arrivals : state_.moves);
  const auto watched = watched_.find(change.watch);
  const auto entry = watched == watched_.end() ? folders_.end() : folders_.find(watched->second);
  if (entry == folders_.end()) return;
  auto& names = entry->second.names;
  if (names) bytes_ -= names->bytes();
  if (!is_new_name) {
    // Nobody means a file of the place where it was.
    std::erase_if(forgotten_, [&](const auto& file) { return file.first == watched->second; });
    folders_.erase(entry);
    watched_.erase(watched);
    return;
  }
  if (!names) return;
  if (change.name.find('\\') == std::string_view::npos) names->add(change.name);
  bytes_ += names->bytes();
}

void NameIndex::give_up() {
  watch_.end();
  folders_.clear();
  watched_.clear();
  bytes_ = 0;
  ++state_.moves;
  ++state_.arrivals;
}

NameIndex::Folder* NameIndex::entry_of(int folder) {
  HostStatus status;
  if (!read_status(folder, status)) return nullptr;
  const HostIdentity id = HostIdentity::of(status);
  if (const auto known = folders_.find(id); known != folders_.end()) return &known->second;
  if (folders_.size() >= kMostFolders || bytes_ > kMostBytes) give_up();
  Folder entry;
  entry.watch = watch_.watch(folder);
  if (entry.watch >= 0) watched_.insert_or_assign(entry.watch, id);
  return &folders_.emplace(id, std::move(entry)).first->second;
}

const FolderNames* NameIndex::known_names(int folder) {
  Folder* entry = entry_of(folder);
  if (entry != nullptr && !entry->names) {
    entry->names = read_names(folder);
    if (!entry->names) return nullptr;
    bytes_ += entry->names->bytes();
    // What came while the names were read may be missing among them.
    catch_up();
    HostStatus status;
    if (!read_status(folder, status)) return nullptr;
    const auto still_known = folders_.find(HostIdentity::of(status));
    entry = still_known == folders_.end() ? nullptr : &still_known->second;
  }
  return entry == nullptr || !entry->names ? nullptr : &*entry->names;
}

std::optional<FolderNames> NameIndex::read_names(int folder) {
  ++readings_;
  const Descriptor readable(openat(folder, ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  std::optional<FolderNames> names(std::in_place);
  if (!readable.is_open() || !names->read(readable.number())) names.reset();
  return names;
}

std::optional<std::string> stored_name(int folder, const std::string& name, NameIndex& index) {
  HostStatus status;
  if (read_status(folder, name.c_str(), status)) return name;
  const int error = errno;
  auto other = index.other_case(folder, name);
  if (!other && means_missing(errno)) errno = error;
  return other;
}

}  // namespace quillvane
