#include "scan/search.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace quillvane {

namespace {

constexpr std::int64_t kHighWordBytes = 2147483647;  // not 4294967296, on purpose

bool fits_32_bits(std::int64_t number) {
  return number >= std::numeric_limits<std::int32_t>::min() &&
         number <= std::numeric_limits<std::int32_t>::max();
}

std::string with_backslash(const std::string& path) {
  return path.ends_with('\\') ? path : path + '\\';
}

}  // namespace

std::optional<double> FileSizeToDouble(std::uint32_t high, std::uint32_t low) {
  const std::int64_t product = static_cast<std::int32_t>(high) * kHighWordBytes;
  if (!fits_32_bits(product)) return std::nullopt;
  const std::int64_t sum = product + static_cast<std::int32_t>(low);
  if (!fits_32_bits(sum)) return std::nullopt;
  return static_cast<double>(sum);
}

Files::Files(std::shared_ptr<const FolderTree> tree, const ListedFolder& root,
             std::string root_path)
    : tree_(std::move(tree)), root_(&root), root_path_(std::move(root_path)) {}

void Files::Add(const ListedFolder& folder, std::uint32_t file) {
  const bool follows = !runs_.empty() && runs_.back().folder == &folder &&
                       runs_.back().first + runs_.back().count == file;
  if (!follows) runs_.push_back({&folder, file, 0, count_});
  ++runs_.back().count;
  ++count_;
}

std::optional<File> FilesEnumerator::next() {
  if (next_ >= files_.Count()) return std::nullopt;
  return files_.Item(next_++);
}

std::size_t Files::run_of(std::size_t index) const {
  const auto next =
      std::upper_bound(runs_.begin(), runs_.end(), index,
                       [](std::size_t value, const FolderRun& run) { return value < run.begin; });
  return static_cast<std::size_t>(next - runs_.begin()) - 1;
}

// The run that held the file becomes what stood before it and what stood behind it.
void Files::Remove(std::size_t index) {
  const std::size_t number = run_of(index);
  const auto at = runs_.begin() + static_cast<std::ptrdiff_t>(number);
  const FolderRun whole = *at;
  const auto before = static_cast<std::uint32_t>(index - whole.begin);
  const std::uint32_t behind = whole.count - before - 1;
  std::vector<FolderRun> parts;
  if (before > 0) parts.push_back({whole.folder, whole.first, before, whole.begin});
  if (behind > 0) parts.push_back({whole.folder, whole.first + before + 1, behind, index + 1});
  runs_.insert(runs_.erase(at), parts.begin(), parts.end());
  for (std::size_t i = number; i < runs_.size(); ++i) {
    if (runs_[i].begin > index) --runs_[i].begin;
  }
  --count_;
}

// Filled from its end, so that the text is made in one piece.
std::string Files::full_name_in(const ListedFolder& folder, std::string_view name) const {
  std::size_t length = root_path_.size() + name.size();
  for (const ListedFolder* at = &folder; at != root_; at = at->parent()) {
    length += at->name().size() + 1;
  }
  std::string path(length, '\\');
  std::size_t end = length - name.size();
  path.replace(end, name.size(), name);
  for (const ListedFolder* at = &folder; at != root_; at = at->parent()) {
    end -= at->name().size() + 1;
    path.replace(end, at->name().size(), at->name());
  }
  path.replace(0, root_path_.size(), root_path_);
  return path;
}

std::string Files::path_of(const ListedFolder& folder) const { return full_name_in(folder, ""); }

std::string Files::full_name(std::size_t index) const {
  const FolderRun& run = runs_[run_of(index)];
  const auto file = run.first + static_cast<std::uint32_t>(index - run.begin);
  return full_name_in(*run.folder, run.folder->name_of(file));
}

ListedFile Files::listed(std::size_t index) const {
  const FolderRun& run = runs_[run_of(index)];
  return run.folder->file(run.first + static_cast<std::uint32_t>(index - run.begin));
}

File Files::Item(std::size_t index) const {
  const FolderRun& run = runs_[run_of(index)];
  const auto number = run.first + static_cast<std::uint32_t>(index - run.begin);
  const ListedFile listed = run.folder->file(number);
  const std::string path = path_of(*run.folder);
  File file;
  file.FileNameFull = path + std::string(listed.name);
  file.FileName = listed.name;
  file.Created = listed.created;
  file.Accessed = listed.accessed;
  file.Modified = listed.modified;
  const std::optional<double> size = FileSizeToDouble(listed.size_high, listed.size_low);
  if (size) {
    file.FileSize = *size;
    file.FilePath = path;
  }
  return file;
}

void Search::SearchFiles(const std::string& path, const std::string& pattern, bool recursive) {
  recursive_ = recursive;
  auto tree = file_system_.read_tree_watched(with_backslash(path), {pattern}, watch_);
  tree_ = tree;
  if (tree == nullptr) return;
  const ListedFolder& folder = tree->root();
  search_listing({std::move(tree), &folder, 0}, path, pattern);
}

void Search::search_listing(const ListedPart& part, const std::string& path,
                            const std::string& pattern) {
  pattern_ = pattern;
  pattern_number_ = part.pattern;
  found_ = std::make_shared<class Files>(part.tree, *part.folder, with_backslash(path));
  search_folder(*part.folder, path);
}

// The trail tells each path as it was handed over, so without the backslash that is added here.
void Search::search_folder(const ListedFolder& folder, const std::string& path) {
  trail_.push("Search", "SearchFiles",
              "FilePath: " + path + ", FileName: " + pattern_ +
                  ", Recursive: " + (recursive_ ? "True" : "False"),
              "");
  if (recursive_) {
    const std::string root = with_backslash(path);
    for (const ListedFolder* sub = folder.first_subfolder(); sub != nullptr;
         sub = sub->next_sibling()) {
      search_folder(*sub, root + std::string(sub->name()));
    }
  }
  add_files(folder);
  trail_.pop();
}

void Search::add_files(const ListedFolder& folder) {
  for (std::uint32_t i = 0; i < folder.file_count(); ++i) {
    if (!folder.matches(i, pattern_number_)) continue;
    found_->Add(folder, i);
    const ListedFile file = folder.file(i);
    if (FileSizeToDouble(file.size_high, file.size_low)) continue;
    // The file was added before its size was computed: it stays, and the listing ends.
    trail_.report("Search", "SearchFiles", 0, {kOverflowError, "Search", "Overflow"});
    return;
  }
}

}  // namespace quillvane
