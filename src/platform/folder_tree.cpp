#include "platform/folder_tree.h"

#include <algorithm>
#include <new>

namespace quillvane {

namespace {
constexpr std::size_t kChunkBytes = std::size_t{256} * 1024;
}

void TreeArena::refill(std::size_t bytes) {
  const std::size_t size = std::max(bytes, kChunkBytes);
  chunks_.push_back(std::make_unique_for_overwrite<char[]>(size));
  next_ = chunks_.back().get();
  left_ = size;
}

ListedFolder* ListedFolder::make(TreeArena& arena, std::string_view name,
                                 const ListedFolder* parent) {
  auto* folder = new (arena.allocate(sizeof(ListedFolder))) ListedFolder;
  char* text = arena.allocate(name.size());
  std::copy(name.begin(), name.end(), text);
  folder->name_ = text;
  folder->name_length_ = static_cast<std::uint32_t>(name.size());
  folder->parent_ = parent;
  return folder;
}

ListedFolder::FixedRecord* ListedFolder::allocate_files(TreeArena& arena, std::uint32_t count,
                                                        std::size_t names_length) {
  file_count_ = count;
  records_ =
      reinterpret_cast<FixedRecord*>(arena.allocate(count * sizeof(FixedRecord) + names_length));
  return records_;
}

std::uint32_t* ListedFolder::allocate_matches(TreeArena& arena) {
  matches_ = reinterpret_cast<std::uint32_t*>(arena.allocate(file_count_ * sizeof(std::uint32_t)));
  return matches_;
}

TreeArena& FolderTree::add_arena() {
  const std::lock_guard lock(adding_);
  return *arenas_.emplace_back(std::make_unique<TreeArena>());
}

}  // namespace quillvane
