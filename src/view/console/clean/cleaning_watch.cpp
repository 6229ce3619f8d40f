#include "view/console/clean/cleaning_watch.h"

#include <algorithm>
#include <utility>

#include "cleaning/pending_queue.h"
#include "cleaning/permission.h"

namespace quillvane {

int CleaningResult::queued() const {
  return static_cast<int>(
      std::count_if(left.begin(), left.end(), [](const FileLeft& file) { return file.queued; }));
}

int CleaningResult::failed() const { return static_cast<int>(left.size()) - queued(); }

CleaningWatch::CleaningWatch(const Platform& machine)
    : ForwardingFileSystem(machine.files), machine_(machine) {}

void CleaningWatch::cleaning_begins(int rows) {
  cleaning_ = true;
  begun_ = true;
  rows_ = rows;
  requests_before_ = removal_requests(machine_.registry);
}

void CleaningWatch::row_done(const std::string& path) {
  ++rows_done_;
  if (in_recycle_bin(path)) bin_files_.insert(path);
}

void CleaningWatch::cleaning_ends() { cleaning_ = false; }

const char* CleaningWatch::reason(const std::string& path, RemoveResult result) const {
  if (result == RemoveResult::kInUse) return "another program has it open";
  if (result == RemoveResult::kTooLong) return "its path is too long";
  if (result == RemoveResult::kUnreadable) return "it cannot be looked at";
  if (result == RemoveResult::kWriteProtected) return "its disk is for reading alone";
  const auto attributes = machine_.files.attributes(path);
  if (attributes && (*attributes & kAttributeReadOnly) != 0) return "it is read-only";
  return "the right to remove it is missing";
}

CleaningResult CleaningWatch::result() const {
  CleaningResult result{begun_, removed_, rows_ - rows_done_, {}};
  const std::set<std::string> now = removal_requests(machine_.registry);
  for (const auto& [path, removal] : stayed_) {
    const bool queued = now.contains(path) && !requests_before_.contains(path);
    result.left.push_back({path, queued, reason(path, removal)});
  }
  for (const std::string& path : bin_files_) {
    if (machine_.files.attributes(path)) {
      result.left.push_back({path, false, "the recycle bin could not be emptied of it"});
    } else {
      ++result.removed;
    }
  }
  return result;
}

RemoveResult CleaningWatch::remove_file(const std::string& path) {
  const RemoveResult result = next().remove_file(path);
  if (!begun_ || result == RemoveResult::kMissing) return result;
  if (result == RemoveResult::kRemoved) {
    ++removed_;
    stayed_.erase(path);
  } else {
    stayed_.insert_or_assign(path, result);
  }
  return result;
}

}  // namespace quillvane
