#include "scan/tree_part.h"

#include <algorithm>
#include <cstdint>
#include <string_view>
#include <vector>

namespace quillvane {

namespace {

// Goes through the part twice in the same order: once to count, once to copy.
class PartCopy {
 public:
  PartCopy(const ListedPart& part, FolderTree& tree)
      : pattern_(part.pattern), arena_(tree.add_arena()) {
    count(*part.folder);
    ListedFolder* root = ListedFolder::make(arena_, {}, nullptr);
    fill(*part.folder, *root);
    tree.set_root(root);
  }

 private:
  struct Counts {
    std::uint32_t files = 0;  // of the folder itself
    std::size_t below = 0;    // of the folder and all below it
    std::size_t folders = 0;  // it and all below it
    std::size_t names_length = 0;
  };

  std::size_t count(const ListedFolder& folder) {
    const std::size_t here = counts_.size();
    Counts counts;
    for (std::uint32_t i = 0; i < folder.file_count(); ++i) {
      if (!folder.matches(i, pattern_)) continue;
      ++counts.files;
      counts.names_length += folder.name_of(i).size();
    }
    counts.below = counts.files;
    counts_.emplace_back();
    for (const ListedFolder* sub = folder.first_subfolder(); sub != nullptr;
         sub = sub->next_sibling()) {
      counts.below += count(*sub);
    }
    counts.folders = counts_.size() - here;
    counts_[here] = counts;
    return counts.below;
  }

  void fill(const ListedFolder& from, ListedFolder& to) {
    copy_files(from, to, counts_[next_++]);
    ListedFolder* last = nullptr;
    for (const ListedFolder* sub = from.first_subfolder(); sub != nullptr;
         sub = sub->next_sibling()) {
      if (counts_[next_].below == 0) {
        next_ += counts_[next_].folders;
        continue;
      }
      ListedFolder* copy = ListedFolder::make(arena_, sub->name(), &to);
      last == nullptr ? to.set_first_subfolder(copy) : last->set_next_sibling(copy);
      last = copy;
      fill(*sub, *copy);
    }
  }

  void copy_files(const ListedFolder& from, ListedFolder& to, const Counts& counts) {
    if (counts.files == 0) return;
    auto* records = to.allocate_files(arena_, counts.files, counts.names_length);
    char* const names = reinterpret_cast<char*>(records + counts.files);
    char* end = names;
    for (std::uint32_t i = 0; i < from.file_count(); ++i) {
      if (!from.matches(i, pattern_)) continue;
      const ListedFile file = from.file(i);
      end = std::copy(file.name.begin(), file.name.end(), end);
      *records++ = {file.size_low,
                    file.size_high,
                    ListedFolder::SplitTime::of(file.created),
                    ListedFolder::SplitTime::of(file.accessed),
                    ListedFolder::SplitTime::of(file.modified),
                    static_cast<std::uint32_t>(end - names)};
    }
  }

  unsigned pattern_;
  TreeArena& arena_;
  std::vector<Counts> counts_;  // of the part's folders, each before those below it
  std::size_t next_ = 0;        // of these, in the copying
};

}  // namespace

std::shared_ptr<const FolderTree> copy_of(const ListedPart& part) {
  auto tree = std::make_shared<FolderTree>();
  PartCopy(part, *tree);
  return tree;
}

}  // namespace quillvane
