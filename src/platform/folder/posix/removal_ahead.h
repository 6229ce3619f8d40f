// Looks at files ahead of their removal, in a thread of its own, so that the thread that removes
// them has nothing else to do.
//
// It is a help only: who asks for a file that was not looked at yet looks himself.
#pragma once

#include <array>
#include <condition_variable>
#include <cstddef>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "platform/folder/posix/seen_file.h"

namespace quillvane {

class RemovalAhead {
 public:
  struct Expected {
    std::string path;  // as take is asked for it
    std::shared_ptr<const LookedAtFolder> folder;
    std::string name;
  };

  RemovalAhead();
  ~RemovalAhead();
  RemovalAhead(const RemovalAhead&) = delete;
  RemovalAhead& operator=(const RemovalAhead&) = delete;

  // Files that take will be asked for, in this order, after those told before. Too many are left
  // out.
  void expect(std::vector<Expected> files);

  // What was seen of a file a moment ago, if it was; each is told once. Those expected before it
  // are given up.
  [[nodiscard]] std::optional<SeenFile> take(const std::string& path);

  // Gives up all that is expected.
  void forget();

 private:
  enum class Stage { kFree, kWaiting, kInWork, kSeen };
  struct Slot {
    Stage stage = Stage::kFree;
    bool given_up = false;  // while in work
    Expected file;
    std::optional<SeenFile> seen;
  };
  static constexpr std::size_t kSlots = 512;

  void work();
  [[nodiscard]] Slot& slot(std::size_t number) { return slots_[number % kSlots]; }
  void give_up_to(std::size_t end);

  std::mutex mutex_;  // of all that follows
  std::condition_variable news_;
  std::array<Slot, kSlots> slots_;
  // Numbers that only grow: first file not taken, first not looked at, and one behind the last.
  std::size_t first_ = 0;
  std::size_t next_ = 0;
  std::size_t end_ = 0;
  bool stopping_ = false;
  std::thread thread_;
};

}  // namespace quillvane
