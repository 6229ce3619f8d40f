#include "scan/clsdirsearch.h"

#include <algorithm>
#include <cstdint>
#include <string_view>
#include <unordered_set>
#include <utility>
#include <vector>

#include "platform/path_limit.h"
#include "platform/unicode_case.h"
#include "scan/reading_watch.h"
#include "support/text.h"

namespace quillvane {

namespace {

// Whether it says where to begin, be the current drive and folder what they may.
bool is_absolute(std::string_view path) {
  return path.starts_with("\\\\") || (path.size() >= 2 && path[1] == ':');
}

// A listing begins with "." and "..", but for that of a drive's root.
std::size_t listed_entries(const ListedFolder& folder, std::string_view path) {
  constexpr std::size_t kRootLength = 3;
  if (!folder.was_read()) return 0;
  return folder.entry_count() + (path.size() > kRootLength ? 2U : 0U);
}

// Whether no two of the names can be the same but for case. Names in the order of a disk are told
// apart by their neighbours; any other order counts as doubtful.
class NamesInOrder {
 public:
  void add(std::string_view name) {
    in_order_ = in_order_ && (last_.empty() || compare_names(last_, name) < 0);
    last_ = name;
  }
  [[nodiscard]] bool all_differ() const { return in_order_; }

 private:
  std::string_view last_;
  bool in_order_ = true;
};

bool files_differ(const ListedFolder& folder) {
  NamesInOrder names;
  for (std::uint32_t i = 0; i < folder.file_count(); ++i) names.add(folder.name_of(i));
  return names.all_differ();
}

bool subfolders_differ(const ListedFolder& folder) {
  NamesInOrder names;
  for (const ListedFolder* sub = folder.first_subfolder(); sub != nullptr;
       sub = sub->next_sibling()) {
    names.add(sub->name());
  }
  return names.all_differ();
}

}  // namespace

// One findfiles. What it has read stays its own when a handler begins another one meanwhile.
class clsdirsearch::Run {
 public:
  Run(clsdirsearch& search, std::shared_ptr<const FolderTree> tree, const std::string& root_path)
      : search_(search),
        tree_(std::move(tree)),
        files_(std::make_shared<Files>(tree_, tree_->root(), root_path)) {}

  // `is_only` says that no other folder of the search has the same path but for case. False: the
  // search is over.
  bool search_folder(const ListedFolder& folder, const std::string& path, bool is_only);

 private:
  bool pass_entries(const ListedFolder& folder, const std::string& path);
  bool tell_files(const ListedFolder& folder, const std::string& path, bool is_only);
  bool search_subfolders(const ListedFolder& folder, const std::string& path, bool is_only);
  void tell(const ListedFolder& folder, const std::string& path, std::uint32_t file);

  clsdirsearch& search_;
  std::shared_ptr<const FolderTree> tree_;
  std::shared_ptr<Files> files_;
  std::vector<std::uint32_t> order_;  // of the files of the folder in hand
  std::unordered_set<std::string>
      keys_;  // full names in small letters, where two could be the same
};

bool clsdirsearch::Run::search_folder(const ListedFolder& folder, const std::string& path,
                                      bool is_only) {
  if (search_.searching) search_.searching(path);
  return pass_entries(folder, path) && tell_files(folder, path, is_only) &&
         (!search_.searchinsubfolders || search_subfolders(folder, path, is_only));
}

bool clsdirsearch::Run::pass_entries(const ListedFolder& folder, const std::string& path) {
  const std::size_t entries = listed_entries(folder, path);
  for (std::size_t i = 0; i < entries; ++i) {
    search_.session_.do_events();
    if (!search_.goes_on()) return false;
  }
  return true;
}

// Pattern after pattern. The first pattern that a file matches is the one by which it is found; the
// others meet it again and pass it over.
bool clsdirsearch::Run::tell_files(const ListedFolder& folder, const std::string& path,
                                   bool is_only) {
  order_.resize(folder.file_count());
  for (std::uint32_t i = 0; i < folder.file_count(); ++i) order_[i] = i;
  std::stable_sort(order_.begin(), order_.end(),
                   [&folder](std::uint32_t left, std::uint32_t right) {
                     return folder.first_match(left) < folder.first_match(right);
                   });
  const bool needs_keys = !is_only || !files_differ(folder);
  for (const std::uint32_t file : order_) {
    const std::string_view name = folder.name_of(file);
    // Windows can't say of so long a path that it is a file.
    if (!fits_path_limit(path, name)) continue;
    if (needs_keys && !keys_.insert(lower_case(path + std::string(name))).second) continue;
    tell(folder, path, file);
    if (!search_.goes_on()) return false;
  }
  return true;
}

bool clsdirsearch::Run::search_subfolders(const ListedFolder& folder, const std::string& path,
                                          bool is_only) {
  const bool are_only = is_only && subfolders_differ(folder);
  for (const ListedFolder* sub = folder.first_subfolder(); sub != nullptr;
       sub = sub->next_sibling()) {
    if (!search_.goes_on()) return false;
    if (!search_folder(*sub, path + std::string(sub->name()) + "\\", are_only)) return false;
  }
  return true;
}

void clsdirsearch::Run::tell(const ListedFolder& folder, const std::string& path,
                             std::uint32_t file) {
  files_->Add(folder, file);
  if (search_.filesfound_ != files_) search_.filesfound_ = files_;
  if (search_.found) search_.found(path, std::string(folder.name_of(file)));
}

void clsdirsearch::findfiles(const std::string& path, const std::string& patterns) {
  filesfound_ = nullptr;
  cancelled_ = false;
  pause = false;
  if (!is_absolute(path)) return;
  const std::string root = path.ends_with('\\') ? path : path + '\\';
  TreeRequest request(Split(patterns, "|"));
  request.tells = TreeRequest::Tells::kFirstMatch;
  request.subfolders = searchinsubfolders;
  ReadingWatch watch(session_);
  const auto tree = session_.platform.files.read_tree_watched(root, request, &watch);
  watch.settle(root, tree.get());
  if (tree != nullptr) {
    Run(*this, tree, root).search_folder(tree->root(), root, /*is_only=*/true);
  } else if (searching) {
    searching(root);
  }
}

bool clsdirsearch::goes_on() {
  while (pause && !cancelled_ && !session_.ended()) session_.do_events();
  return !cancelled_ && !session_.ended();
}

}  // namespace quillvane
