// Keeps a walk in proportion to the folders that are there, however many links lead to them.
//
// Links are followed as folders, and a folder that several links lead to is read by each of these
// ways. Two links in each folder to the next one would double the work at every level. So a walk
// that has come to read much more again than it read for the first time passes over links to
// folders it has read already. Every folder is still read at least once.
#pragma once

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <mutex>
#include <unordered_set>

namespace quillvane {

// Tells the folders of a machine apart, whatever ways lead to them.
struct FolderIdentity {
  std::uint64_t disk = 0;
  std::uint64_t number = 0;  // of the folder on the disk

  friend bool operator==(const FolderIdentity&, const FolderIdentity&) = default;
};

// One for each walk; its threads share it.
class LinkBudget {
 public:
  enum class Entry {
    kFirst,  // the folder was not read behind a link yet
    kAgain,
    kPassedOver,  // it is not to be read
  };

  // A walk may read again four times as many entries as it read first, which is more than the
  // links on any ordinary disk ask for, and as many as are read in a moment besides: in a small
  // tree a few links are enough for more.
  static constexpr std::uint64_t kTimesAsMany = 4;
  static constexpr std::uint64_t kReadInAMoment = 20'000;

  // For each folder that is a link or lies behind one. A folder that is none is never passed over.
  [[nodiscard]] Entry enter(const FolderIdentity& folder, bool is_link);

  // For each folder that was read: how many entries it had.
  void note_read(bool again, std::size_t entries) {
    (again ? again_ : first_).fetch_add(entries + 1, std::memory_order_relaxed);
  }

 private:
  struct Hash {
    std::size_t operator()(const FolderIdentity& folder) const {
      return static_cast<std::size_t>(folder.number ^ (folder.disk << 48U));
    }
  };

  std::mutex entering_;
  std::unordered_set<FolderIdentity, Hash> entered_;
  std::atomic<std::uint64_t> first_ = 0;  // entries and their folders
  std::atomic<std::uint64_t> again_ = 0;
};

}  // namespace quillvane
