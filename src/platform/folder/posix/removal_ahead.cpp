#include "platform/folder/posix/removal_ahead.h"

#include <algorithm>
#include <utility>

namespace quillvane {

RemovalAhead::RemovalAhead() : thread_([this] { work(); }) {}

RemovalAhead::~RemovalAhead() {
  {
    const std::lock_guard lock(mutex_);
    stopping_ = true;
  }
  news_.notify_one();
  thread_.join();
}

void RemovalAhead::expect(std::vector<Expected> files) {
  {
    const std::lock_guard lock(mutex_);
    if (end_ - first_ + files.size() > kSlots) give_up_to(end_);
    for (Expected& file : files) {
      Slot& free = slot(end_);
      if (free.stage != Stage::kFree || end_ - first_ == kSlots) break;
      free.file = std::move(file);
      free.stage = Stage::kWaiting;
      ++end_;
    }
  }
  news_.notify_one();
}

std::optional<SeenFile> RemovalAhead::take(const std::string& path) {
  const std::lock_guard lock(mutex_);
  std::size_t number = first_;
  while (number != end_ && slot(number).file.path != path) ++number;
  if (number == end_) return std::nullopt;
  auto seen = std::move(slot(number).seen);
  give_up_to(number + 1);
  return seen && is_fresh(*seen) ? std::move(seen) : std::nullopt;
}

void RemovalAhead::forget() {
  const std::lock_guard lock(mutex_);
  give_up_to(end_);
}

void RemovalAhead::give_up_to(std::size_t end) {
  for (; first_ != end; ++first_) {
    Slot& gone = slot(first_);
    gone.seen.reset();
    if (gone.stage == Stage::kInWork) {
      gone.given_up = true;
    } else {
      gone.stage = Stage::kFree;
    }
  }
}

void RemovalAhead::work() {
  FileLook look;
  std::unique_lock lock(mutex_);
  for (;;) {
    news_.wait(lock, [this] { return stopping_ || std::max(next_, first_) != end_; });
    if (stopping_) return;
    next_ = std::max(next_, first_);
    Slot& mine = slot(next_++);
    mine.stage = Stage::kInWork;
    lock.unlock();
    auto seen = look.look(mine.file.folder, mine.file.name);
    lock.lock();
    if (!mine.given_up) mine.seen = std::move(seen);
    mine.stage = mine.given_up ? Stage::kFree : Stage::kSeen;
    mine.given_up = false;
  }
}

}  // namespace quillvane
