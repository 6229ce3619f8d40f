#include "platform/win32/tree_reader.h"

#include <algorithm>
#include <utility>

#include "platform/unicode_case.h"
#include "platform/win32/folder_listing.h"
#include "platform/win32/wide_text.h"
#include "platform/win32/win32_path.h"

namespace quillvane {

namespace {

// Subfolders are found by the pattern "*.*", whatever is asked of the files.
constexpr std::size_t kFolderPatternLength = 3;

}  // namespace

TreeReader::TreeReader(const std::vector<std::string>& patterns, FolderTree& tree)
    : patterns_(patterns.begin(), patterns.end()), arena_(tree.add_arena()), tree_(tree) {
  for (const std::string& pattern : patterns) pattern_lengths_.push_back(utf16_length(pattern));
  needs_short_names_ =
      !std::all_of(patterns_.begin(), patterns_.end(),
                   [](const FilePattern& pattern) { return pattern.matches_every_name(); });
}

bool TreeReader::read(std::wstring folder) {
  path_ = std::move(folder);
  ListedFolder* root = ListedFolder::make(arena_, {}, nullptr);
  tree_.set_root(root);
  const bool is_new = guard_.enter(path_, /*is_link=*/false);
  return is_new && read_folder(*root);
}

// One listing serves for files and subfolders. Each pattern and the subfolders have limits of their
// own, since a path is too long by the pattern that is put behind it.
bool TreeReader::read_folder(ListedFolder& folder) {
  const PatternSet usable = usable_patterns();
  const bool folders_fit = path_.size() + kFolderPatternLength < kPathLimit;
  if (usable == 0 && !folders_fit) return false;

  FolderListing listing(path_ + L'*', needs_short_names_ ? FolderListing::ShortNames::kYes
                                                         : FolderListing::ShortNames::kNo);
  if (!listing.is_open()) return false;
  std::vector<Subfolder> subfolders;
  while (const WIN32_FIND_DATAW* entry = listing.next()) {
    if ((entry->dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0) {
      if (usable != 0) note_file(*entry, usable);
    } else if (folders_fit) {
      subfolders.push_back(make_subfolder(*entry, folder));
    }
  }
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
  const std::size_t length = path_.size();
  path_ += widen(subfolder.folder->name());
  path_ += L'\\';
  if (guard_.enter(path_, subfolder.is_link)) {
    // One that cannot be read stays in the tree, empty.
    static_cast<void>(read_folder(*subfolder.folder));
    guard_.leave();
  } else {
    tree_.set_left_out_loops();
  }
  path_.resize(length);
}

TreeReader::PatternSet TreeReader::usable_patterns() const {
  PatternSet usable = 0;
  for (std::size_t i = 0; i < pattern_lengths_.size(); ++i) {
    if (path_.size() + pattern_lengths_[i] < kPathLimit) usable |= PatternSet{1} << i;
  }
  return usable;
}

void TreeReader::note_file(const WIN32_FIND_DATAW& entry, PatternSet usable) {
  const std::size_t begin = names_.size();
  append_narrow(entry.cFileName, names_);
  PatternSet matched = matches(std::string_view(names_).substr(begin)) & usable;
  if (matched != usable && entry.cAlternateFileName[0] != L'\0') {
    matched |= matches(narrow(entry.cAlternateFileName)) & usable;
  }
  if (matched == 0) {
    names_.resize(begin);
    return;
  }
  matches_.push_back(matched);
  records_.push_back({entry.nFileSizeLow,
                      entry.nFileSizeHigh,
                      {entry.ftCreationTime.dwLowDateTime, entry.ftCreationTime.dwHighDateTime},
                      {entry.ftLastAccessTime.dwLowDateTime, entry.ftLastAccessTime.dwHighDateTime},
                      {entry.ftLastWriteTime.dwLowDateTime, entry.ftLastWriteTime.dwHighDateTime},
                      static_cast<std::uint32_t>(names_.size())});
}

TreeReader::PatternSet TreeReader::matches(std::string_view name) const {
  PatternSet matched = 0;
  for (std::size_t i = 0; i < patterns_.size(); ++i) {
    if (patterns_[i].matches(name)) matched |= PatternSet{1} << i;
  }
  return matched;
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
    // With one pattern whatever is there matches it.
    if (patterns_.size() > 1) {
      std::copy(matches_.begin(), matches_.end(), folder.allocate_matches(arena_));
    }
  }
  records_.clear();
  matches_.clear();
  names_.clear();
}

}  // namespace quillvane
