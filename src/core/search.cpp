#include "core/search.h"

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

}  // namespace

std::optional<double> FileSizeToDouble(std::uint32_t high, std::uint32_t low) {
  const std::int64_t product = static_cast<std::int32_t>(high) * kHighWordBytes;
  if (!fits_32_bits(product)) return std::nullopt;
  const std::int64_t sum = product + static_cast<std::int32_t>(low);
  if (!fits_32_bits(sum)) return std::nullopt;
  return static_cast<double>(sum);
}

Files::Files(std::shared_ptr<const FolderTree> tree, std::string root_path)
    : tree_(std::move(tree)), root_path_(std::move(root_path)) {}

void Files::Add(const ListedFolder& folder, std::uint32_t count, bool last_overflowed) {
  if (count == 0) return;
  runs_.push_back({&folder, count_, count, last_overflowed});
  count_ += count;
}

const FolderRun& Files::run_of(std::size_t index) const {
  const auto next =
      std::upper_bound(runs_.begin(), runs_.end(), index,
                       [](std::size_t value, const FolderRun& run) { return value < run.begin; });
  return *std::prev(next);
}

std::string Files::path_of(const ListedFolder& folder) const {
  std::vector<std::string_view> names;
  for (const ListedFolder* at = &folder; at->parent() != nullptr; at = at->parent()) {
    names.push_back(at->name());
  }
  std::string path = root_path_;
  for (auto name = names.rbegin(); name != names.rend(); ++name) {
    path.append(*name).push_back('\\');
  }
  return path;
}

std::string Files::full_name(std::size_t index) const {
  const FolderRun& run = run_of(index);
  const auto file = static_cast<std::uint32_t>(index - run.begin);
  return path_of(*run.folder).append(run.folder->name_of(file));
}

File Files::Item(std::size_t index) const {
  const FolderRun& run = run_of(index);
  const ListedFile listed = run.folder->file(static_cast<std::uint32_t>(index - run.begin));
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
  const std::string root = path.ends_with('\\') ? path : path + '\\';
  auto tree = file_system_.read_tree(root, pattern);
  if (tree == nullptr) return;
  auto found = std::make_shared<class Files>(tree, root);
  search_folder(tree->root(), root, pattern, recursive, *found);
  found_ = std::move(found);
}

void Search::search_folder(const ListedFolder& folder, const std::string& path,
                           const std::string& pattern, bool recursive, class Files& found) {
  trail_.push("Search", "SearchFiles",
              "FilePath: " + path + ", FileName: " + pattern +
                  ", Recursive: " + (recursive ? "True" : "False"),
              "");
  if (recursive) {
    for (const ListedFolder* sub = folder.first_subfolder(); sub != nullptr;
         sub = sub->next_sibling()) {
      search_folder(*sub, path + std::string(sub->name()) + '\\', pattern, recursive, found);
    }
  }
  add_files(folder, found);
  trail_.pop();
}

void Search::add_files(const ListedFolder& folder, class Files& found) {
  for (std::uint32_t i = 0; i < folder.file_count(); ++i) {
    const ListedFile file = folder.file(i);
    if (FileSizeToDouble(file.size_high, file.size_low)) continue;
    trail_.report("Search", "SearchFiles", 0, {kOverflowError, "Search", "Overflow"});
    found.Add(folder, i + 1, true);  // the file was added before its size was computed
    return;
  }
  found.Add(folder, folder.file_count(), false);
}

}  // namespace quillvane
