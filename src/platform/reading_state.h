// How far the reading of a tree has come, and whether it shall end: what the threads that read and
// the one that watches them share.
#pragma once

#include <atomic>
#include <cstdint>
#include <limits>
#include <string>

#include "platform/folder_tree.h"

namespace quillvane {

class ReadingState {
 public:
  static constexpr std::uint64_t kAnyNumber = std::numeric_limits<std::uint64_t>::max();

  // The reading ends by itself where it has come to `most_files`.
  explicit ReadingState(std::uint64_t most_files = kAnyNumber) : most_files_(most_files) {}

  // What the readers tell: the folder in work, whose tree must outlive this, and files read.
  void enter(const ListedFolder& folder) { in_work_.store(&folder, std::memory_order_release); }
  void add_files(std::uint64_t count) {
    if (files_.fetch_add(count, std::memory_order_relaxed) + count >= most_files_) end();
  }
  // Whether they shall stop where they are. Cheap enough to be asked for each file.
  [[nodiscard]] bool ended() const { return ended_.load(std::memory_order_relaxed); }

  void end() { ended_.store(true, std::memory_order_relaxed); }
  [[nodiscard]] std::uint64_t files() const { return files_.load(std::memory_order_relaxed); }
  // The path of the folder in work when the tree's root is `root`, a path without a backslash.
  [[nodiscard]] std::string folder_in_work(const std::string& root) const;

 private:
  const std::uint64_t most_files_;
  std::atomic<const ListedFolder*> in_work_ = nullptr;
  std::atomic<std::uint64_t> files_ = 0;
  std::atomic<bool> ended_ = false;
};

}  // namespace quillvane
