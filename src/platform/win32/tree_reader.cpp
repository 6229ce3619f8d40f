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

TreeReader::TreeReader(std::string_view pattern, FolderTree& tree)
    : pattern_(pattern),
      pattern_length_(utf16_length(pattern)),
      arena_(tree.add_arena()),
      tree_(tree) {}

bool TreeReader::read(std::wstring folder) {
  path_ = std::move(folder);
  ListedFolder* root = ListedFolder::make(arena_, {}, nullptr);
  tree_.set_root(root);
  const bool is_new = guard_.enter(path_, /*is_link=*/false);
  return is_new && read_folder(*root);
}

// One listing serves for files and subfolders. The two have limits of their own, since a path
// is too long by the pattern that is put behind it.
bool TreeReader::read_folder(ListedFolder& folder) {
  const bool files_fit = path_.size() + pattern_length_ < kPathLimit;
  const bool folders_fit = path_.size() + kFolderPatternLength < kPathLimit;
  if (!files_fit && !folders_fit) return false;

  FolderListing listing(path_ + L'*', pattern_.matches_every_name()
                                          ? FolderListing::ShortNames::kNo
                                          : FolderListing::ShortNames::kYes);
  if (!listing.is_open()) return false;
  std::vector<Subfolder> subfolders;
  while (const WIN32_FIND_DATAW* entry = listing.next()) {
    if ((entry->dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0) {
      if (files_fit) note_file(*entry);
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
  }
  path_.resize(length);
}

void TreeReader::note_file(const WIN32_FIND_DATAW& entry) {
  const std::size_t begin = names_.size();
  append_narrow(entry.cFileName, names_);
  if (!matches(entry, std::string_view(names_).substr(begin))) {
    names_.resize(begin);
    return;
  }
  records_.push_back({entry.nFileSizeLow,
                      entry.nFileSizeHigh,
                      {entry.ftCreationTime.dwLowDateTime, entry.ftCreationTime.dwHighDateTime},
                      {entry.ftLastAccessTime.dwLowDateTime, entry.ftLastAccessTime.dwHighDateTime},
                      {entry.ftLastWriteTime.dwLowDateTime, entry.ftLastWriteTime.dwHighDateTime},
                      static_cast<std::uint32_t>(names_.size())});
}

bool TreeReader::matches(const WIN32_FIND_DATAW& entry, std::string_view name) const {
  if (pattern_.matches(name)) return true;
  return entry.cAlternateFileName[0] != L'\0' && pattern_.matches(narrow(entry.cAlternateFileName));
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
  }
  records_.clear();
  names_.clear();
}

}  // namespace quillvane
