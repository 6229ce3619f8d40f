// Reads a folder of a drive and everything below it, with one thread or several.
//
// The tree does not depend on the threads: each folder's entries are sorted, and which thread read
// them leaves no trace. Helping threads start only when a tree proves to be large.
#pragma once

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

#include "platform/folder/posix/drive_folder.h"
#include "platform/folder/posix/folder_in_work.h"
#include "platform/folder/posix/open_folders.h"
#include "platform/folder/posix/tree_route.h"
#include "platform/folder/posix/tree_scope.h"
#include "platform/folder_tree.h"
#include "platform/link_budget.h"
#include "platform/reading_state.h"

namespace quillvane {

class FolderWalk {
 public:
  // All must outlive the walk. Requires: threads is at least 1.
  FolderWalk(const TreeScope& scope, unsigned threads, FolderTree& tree, ReadingState& state);

  // Reads the folder `start`, already open as `descriptor`, into the tree. `path_units` are the
  // UTF-16 units of its Windows path with a backslash. When `state` ends the reading, what was read
  // until then stays. Called once.
  // Which links are passed over (FolderTree::left_out_links) depends on which are met first, so on
  // the threads: with several of them such a walk gives up, to be done anew with one.
  void read(const HostPlace& start, Descriptor descriptor, std::size_t path_units);

 private:
  // What one thread does; thread 0 is the caller's and begins with the first folder.
  void work(std::size_t thread, std::optional<FolderInWork> first);
  void start_helpers();
  void finish(std::size_t thread, FolderInWork folder, std::size_t subfolders);
  [[nodiscard]] std::optional<FolderInWork> next_folder(std::size_t thread);
  [[nodiscard]] std::optional<FolderInWork> take_from_others(std::size_t thread);

  [[nodiscard]] bool is_given_up() const { return open_.size() > 1 && tree_.left_out_links(); }
  [[nodiscard]] FolderInWork enter(const FolderInWork& parent, ListedFolder& folder);
  void enter_link(const FolderInWork& parent, FolderInWork& entered);
  [[nodiscard]] bool may_be_read(FolderInWork& entered, bool is_link);
  const TreeRoute* add_route(TreeRoute route);

  const TreeScope& scope_;
  FolderTree& tree_;
  ReadingState& state_;
  std::vector<OpenFolders> open_;  // one for each thread
  std::vector<std::thread> helpers_;

  LinkBudget links_;
  std::mutex adding_route_;
  std::deque<TreeRoute> routes_;

  std::atomic<std::size_t> unread_ = 1;  // folders known of that are not read yet
  std::atomic<unsigned> idle_ = 0;       // threads that look for work
  std::atomic<std::uint32_t> news_ = 0;  // changes when they should look again
};

}  // namespace quillvane
