#include "platform/folder/win32/tree_walk.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>

#include "platform/folder/collected_names.h"
#include "platform/unicode_case.h"
#include "platform/win32/long_path.h"
#include "platform/win32/wide_text.h"

namespace quillvane {

namespace {

using Kind = NameListing::Kind;
using StatusByName = std::unordered_map<std::string_view, const HostStatus*>;

ListedFolder::FixedRecord record_of(const HostStatus& status, std::size_t name_end) {
  return {status.nFileSizeLow,
          status.nFileSizeHigh,
          {status.ftCreationTime.dwLowDateTime, status.ftCreationTime.dwHighDateTime},
          {status.ftLastAccessTime.dwLowDateTime, status.ftLastAccessTime.dwHighDateTime},
          {status.ftLastWriteTime.dwLowDateTime, status.ftLastWriteTime.dwHighDateTime},
          static_cast<std::uint32_t>(name_end)};
}

bool contains(const std::vector<HostIdentity>& folders, const HostIdentity& folder) {
  return std::find(folders.begin(), folders.end(), folder) != folders.end();
}

void add_subfolders(const CollectedNames& names, TreeArena& arena, ListedFolder& folder) {
  ListedFolder* last = nullptr;
  for (const auto& entry : names.entries()) {
    if (entry.kind != Kind::kFolder) continue;
    ListedFolder* next = ListedFolder::make(arena, names.name(entry), &folder);
    last == nullptr ? folder.set_first_subfolder(next) : last->set_next_sibling(next);
    last = next;
  }
}

void add_files(CollectedNames& names, const StatusByName& status, bool tells_matches,
               TreeArena& arena, ListedFolder& folder) {
  names.drop_if([](const auto& entry) { return entry.kind == Kind::kFolder; });
  std::string text;
  for (const auto& entry : names.entries()) text += names.name(entry);
  const auto count = static_cast<std::uint32_t>(names.entries().size());
  if (count == 0) return;

  auto* const records = folder.allocate_files(arena, count, text.size());
  std::copy(text.begin(), text.end(), reinterpret_cast<char*>(records + count));
  std::uint32_t* matches = tells_matches ? folder.allocate_matches(arena) : nullptr;
  std::size_t name_end = 0;
  for (std::uint32_t i = 0; i < count; ++i) {
    const auto& entry = names.entries()[i];
    name_end += entry.name_length;
    records[i] = record_of(*status.at(names.name(entry)), name_end);
    if (matches != nullptr) matches[i] = entry.matches;
  }
}

}  // namespace

void TreeWalk::read(const HeldPlace& start, std::size_t path_units) {
  ListedFolder* root = ListedFolder::make(arena_, {}, nullptr);
  tree_.set_root(root);
  read_folder(*root, {start, path_units});
}

void TreeWalk::read_folder(ListedFolder& folder, const Step& step) {
  if (state_.ended()) return;
  state_.enter(folder);
  const std::vector<HostFile> files = read_entries(drive_, step.place, state_);
  links_.note_read(step.is_read_again, files.size());
  CollectedNames names;
  StatusByName status;
  for (const HostFile& file : files) {
    names.add(file.name, is_folder(file.status) ? Kind::kFolder : Kind::kFile);
    status.emplace(file.name, &file.status);
  }
  folder.set_entry_count(static_cast<std::uint32_t>(files.size()));
  patterns_.filter.apply(names, step.path_units);
  if (patterns_.can_list_subfolders(step.path_units)) add_subfolders(names, arena_, folder);
  add_files(names, status, patterns_.filter.tells_matches(), arena_, folder);
  state_.add_files(folder.file_count());

  way_.push_back(HostIdentity::of(step.place.status));
  for (auto* sub = folder.first_subfolder(); sub != nullptr; sub = sub->next_sibling()) {
    read_subfolder(*sub, step);
  }
  way_.pop_back();
}

// One that cannot be read stays in the tree, empty.
void TreeWalk::read_subfolder(ListedFolder& folder, const Step& parent) {
  if (state_.ended()) return;
  const std::string name(folder.name());
  const std::size_t path_units = parent.path_units + utf16_length(name) + 1;
  if (!patterns_.can_list(path_units)) return;
  const auto place = drive_.follow(parent.place, widen(name), Access::kListed);
  if (!place || !place->is_folder()) return;
  const HostIdentity identity = HostIdentity::of(place->status);
  if (!may_be_read(identity)) return;
  const bool is_link = place->path != path_below(parent.place.path, widen(name));
  Step step{*place, path_units, parent.is_behind_link || is_link};
  if (step.is_behind_link) {
    const LinkBudget::Entry entry = links_.enter(identity.key(), is_link);
    if (entry == LinkBudget::Entry::kPassedOver) return tree_.set_left_out_links();
    step.is_read_again = entry == LinkBudget::Entry::kAgain;
  }
  read_folder(folder, step);
}

bool TreeWalk::may_be_read(const HostIdentity& folder) {
  const bool is_loop = contains(way_, folder);
  if (is_loop) tree_.set_left_out_loops();
  return !is_loop && !contains(denied_, folder);
}

}  // namespace quillvane
