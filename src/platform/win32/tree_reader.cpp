#include "platform/win32/tree_reader.h"

#include <algorithm>
#include <utility>

#include "platform/win32/folder_listing.h"
#include "platform/win32/wide_text.h"
#include "platform/win32/win32_path.h"

namespace quillvane {

namespace {

// Subfolders are found by the pattern "*.*", whatever is asked of the files.
constexpr std::size_t kFolderPatternLength = 3;

}  // namespace

TreeReader::TreeReader(const TreeRequest& request, FolderTree& tree, ReadingState& state)
    : patterns_(request),
      subfolders_(request.subfolders),
      short_names_(patterns_.takes_every_name() ? FolderListing::ShortNames::kNo
                                                : FolderListing::ShortNames::kYes),
      arena_(tree.add_arena()),
      tree_(tree),
      state_(state) {}

bool TreeReader::read(std::wstring folder) {
  path_ = std::move(folder);
  ListedFolder* root = ListedFolder::make(arena_, {}, nullptr);
  tree_.set_root(root);
  return guard_.enter(path_, /*is_link=*/false) == LinkGuard::Step::kEntered && read_folder(*root);
}

// One listing serves for files and subfolders. Each has a limit of its own, since a path is too
// long by the pattern that is put behind it.
bool TreeReader::read_folder(ListedFolder& folder) {
  const bool files_fit = patterns_.any_fits(path_.size());
  const bool folders_fit = subfolders_ && path_.size() + kFolderPatternLength < kPathLimit;
  if (!files_fit && !folders_fit) return false;

  if (state_.ended()) return true;
  state_.enter(folder);
  FolderListing listing(path_ + L'*', short_names_);
  if (!listing.is_open()) return false;
  std::vector<Subfolder> subfolders;
  std::size_t entries = 0;
  while (const WIN32_FIND_DATAW* entry = state_.ended() ? nullptr : listing.next()) {
    ++entries;
    if ((entry->dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0) {
      if (files_fit) note_file(*entry);
    } else if (folders_fit) {
      subfolders.push_back(make_subfolder(*entry, folder));
    }
  }
  guard_.note_read(entries);
  folder.set_entry_count(static_cast<std::uint32_t>(entries));
  store_files(folder);

  ListedFolder* last = nullptr;
  for (const Subfolder& subfolder : subfolders) {
    last == nullptr ? folder.set_first_subfolder(subfolder.folder)
                    : last->set_next_sibling(subfolder.folder);
    last = subfolder.folder;
    read_subfolder(subfolder);
  }
  return true;
}

void TreeReader::read_subfolder(const Subfolder& subfolder) {
  if (state_.ended()) return;
  const std::size_t length = path_.size();
  path_ += widen(subfolder.folder->name());
  path_ += L'\\';
  switch (guard_.enter(path_, subfolder.is_link)) {
    case LinkGuard::Step::kEntered:
      // One that cannot be read stays in the tree, empty.
      static_cast<void>(read_folder(*subfolder.folder));
      guard_.leave();
      break;
    case LinkGuard::Step::kLoop:
      tree_.set_left_out_loops();
      break;
    case LinkGuard::Step::kPassedOver:
      tree_.set_left_out_links();
      break;
  }
  path_.resize(length);
}

std::uint32_t TreeReader::matches(const WIN32_FIND_DATAW& entry, std::string_view name) const {
  const std::uint32_t by_name = patterns_.matches(name, path_.size());
  if (entry.cAlternateFileName[0] == L'\0') return by_name;
  const std::string short_name = narrow(entry.cAlternateFileName);
  return patterns_.either(by_name, patterns_.matches(short_name, path_.size()));
}

void TreeReader::note_file(const WIN32_FIND_DATAW& entry) {
  const std::size_t begin = names_.size();
  append_narrow(entry.cFileName, names_);
  const std::uint32_t matching = matches(entry, std::string_view(names_).substr(begin));
  if (matching == 0) {
    names_.resize(begin);
    return;
  }
  state_.add_files(1);
  matches_.push_back(matching);
  records_.push_back({entry.nFileSizeLow,
                      entry.nFileSizeHigh,
                      {entry.ftCreationTime.dwLowDateTime, entry.ftCreationTime.dwHighDateTime},
                      {entry.ftLastAccessTime.dwLowDateTime, entry.ftLastAccessTime.dwHighDateTime},
                      {entry.ftLastWriteTime.dwLowDateTime, entry.ftLastWriteTime.dwHighDateTime},
                      static_cast<std::uint32_t>(names_.size())});
}

TreeReader::Subfolder TreeReader::make_subfolder(const WIN32_FIND_DATAW& entry,
                                                 const ListedFolder& parent) {
  return {ListedFolder::make(arena_, narrow(entry.cFileName), &parent),
          (entry.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0};
}

void TreeReader::store_files(ListedFolder& folder) {
  if (!records_.empty()) {
    const auto count = static_cast<std::uint32_t>(records_.size());
    ListedFolder::FixedRecord* stored = folder.allocate_files(arena_, count, names_.size());
    std::copy(records_.begin(), records_.end(), stored);
    std::copy(names_.begin(), names_.end(), reinterpret_cast<char*>(stored + count));
    if (patterns_.tells_matches()) {
      std::copy(matches_.begin(), matches_.end(), folder.allocate_matches(arena_));
    }
  }
  matches_.clear();
  records_.clear();
  names_.clear();
}

}  // namespace quillvane
