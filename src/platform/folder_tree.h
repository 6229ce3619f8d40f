// What a walk of one folder and everything below it has read: names, sizes and times, kept
// compactly. A folder of files is one block of fixed records followed by their names, so that
// a million files cost little more than their names.
//
// Built by a platform's FileSystem::read_tree_watched, read by the walker; the rows of the hit list
// keep the tree alive and read their texts from it.
#pragma once

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <mutex>
#include <string_view>
#include <vector>

#include "platform/file_time.h"
#include "platform/tree_request.h"

namespace quillvane {

// One file as a listing gives it. `name` points into the tree.
struct ListedFile {
  std::string_view name;
  std::uint32_t size_high = 0;  // upper and lower word of the size in bytes
  std::uint32_t size_low = 0;
  FileTime created;
  FileTime accessed;
  FileTime modified;
};

// A stock of memory for one reading thread. Blocks live as long as the tree.
class TreeArena {
 public:
  // Room for `bytes`, aligned for any record of the tree.
  char* allocate(std::size_t bytes) {
    bytes = (bytes + 7) & ~std::size_t{7};
    if (bytes > left_) refill(bytes);
    char* place = next_;
    next_ += bytes;
    left_ -= bytes;
    return place;
  }

 private:
  void refill(std::size_t bytes);

  std::vector<std::unique_ptr<char[]>> chunks_;
  char* next_ = nullptr;
  std::size_t left_ = 0;
};

// One folder of the tree: its files that matched the pattern, and all its subfolders, each in the
// order of the file system. Made in an arena, never moved.
class ListedFolder {
 public:
  // Name without path; empty for the root of the walk.
  [[nodiscard]] std::string_view name() const { return {name_, name_length_}; }

  [[nodiscard]] const ListedFolder* parent() const { return parent_; }
  [[nodiscard]] const ListedFolder* first_subfolder() const { return first_subfolder_; }
  [[nodiscard]] const ListedFolder* next_sibling() const { return next_sibling_; }

  [[nodiscard]] std::uint32_t file_count() const { return file_count_; }
  [[nodiscard]] ListedFile file(std::uint32_t index) const {
    const FixedRecord& record = records_[index];
    return {name_of(index),        record.size_high,       record.size_low,
            record.created.time(), record.accessed.time(), record.modified.time()};
  }
  [[nodiscard]] std::string_view name_of(std::uint32_t index) const {
    const char* names = reinterpret_cast<const char*>(records_ + file_count_);
    const std::uint32_t begin = index == 0 ? 0 : records_[index - 1].name_end;
    return {names + begin, records_[index].name_end - begin};
  }

  // Whether the file matches pattern number `pattern` of the reading, from 0. Requires: the request
  // was for every match.
  [[nodiscard]] bool matches(std::uint32_t index, unsigned pattern) const {
    return matches_ == nullptr || (matches_[index] >> pattern & 1U) != 0;
  }
  // The number of the first pattern that the file matches, from 0. Requires: the request was for
  // the first match.
  [[nodiscard]] std::uint32_t first_match(std::uint32_t index) const {
    return matches_ == nullptr ? 0 : matches_[index] - 1;
  }

  // Whether the folder could be read, and how many files and folders it holds then, whatever their
  // names.
  [[nodiscard]] bool was_read() const { return was_read_; }
  [[nodiscard]] std::uint32_t entry_count() const { return entry_count_; }

  // The building side, for read_tree. All words are 32 bits wide, so that nothing is padded.
  struct SplitTime {
    std::uint32_t low;
    std::uint32_t high;

    static SplitTime of(FileTime time) {
      const auto ticks = static_cast<std::uint64_t>(time.ticks);
      return {static_cast<std::uint32_t>(ticks), static_cast<std::uint32_t>(ticks >> 32U)};
    }
    [[nodiscard]] FileTime time() const {
      return {static_cast<std::int64_t>(std::uint64_t{high} << 32U | low)};
    }
  };
  struct FixedRecord {
    std::uint32_t size_low;
    std::uint32_t size_high;
    SplitTime created;
    SplitTime accessed;
    SplitTime modified;
    std::uint32_t name_end;  // offset behind this name in the block's names
  };
  static_assert(sizeof(FixedRecord) == 36);
  static ListedFolder* make(TreeArena& arena, std::string_view name, const ListedFolder* parent);
  [[nodiscard]] ListedFolder* first_subfolder() { return first_subfolder_; }
  [[nodiscard]] ListedFolder* next_sibling() { return next_sibling_; }
  void set_first_subfolder(ListedFolder* folder) { first_subfolder_ = folder; }
  void set_next_sibling(ListedFolder* folder) { next_sibling_ = folder; }
  // Takes room for `count` records and `names_length` bytes of names behind them.
  FixedRecord* allocate_files(TreeArena& arena, std::uint32_t count, std::size_t names_length);
  void set_entry_count(std::uint32_t count) {
    was_read_ = true;
    entry_count_ = count;
  }
  // Counts only the first `count` of them; the names then begin behind those.
  void keep_files(std::uint32_t count) { file_count_ = count; }
  // Takes room for one word a file that tells which patterns it matches (PatternSet); left out
  // where all files match the only pattern.
  std::uint32_t* allocate_matches(TreeArena& arena);

 private:
  const ListedFolder* parent_ = nullptr;
  ListedFolder* first_subfolder_ = nullptr;
  ListedFolder* next_sibling_ = nullptr;
  FixedRecord* records_ = nullptr;
  std::uint32_t* matches_ = nullptr;
  const char* name_ = nullptr;
  std::uint32_t file_count_ = 0;
  std::uint32_t entry_count_ = 0;
  std::uint32_t name_length_ = 0;
  bool was_read_ = false;
};

class FolderTree {
 public:
  // As many patterns can be asked for where every match is to be told.
  static constexpr unsigned kMostPatterns = 32;
  [[nodiscard]] static bool can_tell(const TreeRequest& request) {
    return request.tells == TreeRequest::Tells::kFirstMatch ||
           request.patterns.size() <= kMostPatterns;
  }

  // The folder that the walk began with.
  [[nodiscard]] const ListedFolder& root() const { return *root_; }

  // Whether a link was not entered since it leads back to a folder it lies in.
  [[nodiscard]] bool left_out_loops() const { return left_out_loops_; }

  // Whether links to folders that were read already were passed over, since they led to much more
  // than there is (LinkBudget).
  [[nodiscard]] bool left_out_links() const { return left_out_links_; }

  // Whether the reading was ended before all was read.
  [[nodiscard]] bool ended_early() const { return ended_early_; }

  // The building side. Each reading thread takes an arena of its own.
  TreeArena& add_arena();
  void set_root(const ListedFolder* root) { root_ = root; }
  void set_left_out_loops() { left_out_loops_ = true; }
  void set_left_out_links() { left_out_links_ = true; }
  void set_ended_early() { ended_early_ = true; }

 private:
  std::mutex adding_;
  std::vector<std::unique_ptr<TreeArena>> arenas_;
  const ListedFolder* root_ = nullptr;
  std::atomic<bool> left_out_loops_ = false;
  std::atomic<bool> left_out_links_ = false;
  bool ended_early_ = false;
};

}  // namespace quillvane
