#include "view/console/clean/cleaning_watch.h"

#include <utility>

#include "platform/multi_string.h"

namespace quillvane {

CleaningWatch::CleaningWatch(const Platform& machine)
    : ForwardingFileSystem(machine.files), machine_(machine) {}

void CleaningWatch::begin(std::vector<std::string> bin_files) {
  counting_ = true;
  bin_files_ = std::move(bin_files);
  queue_before_ = queue();
}

std::set<std::string> CleaningWatch::queue() const {
  const auto value = machine_.registry.value(Hive::kLocalMachine,
                                             "SYSTEM\\CurrentControlSet\\Control\\Session Manager",
                                             "PendingFileRenameOperations");
  if (!value || value->type != RegistryType::kMultiSz) return {};
  std::set<std::string> requests;
  for (std::string& request : multi_string_list(value->data)) requests.insert(std::move(request));
  return requests;
}

CleaningCounts CleaningWatch::end() const {
  CleaningCounts counts{removed_, 0, 0};
  for (const std::string& file : bin_files_) {
    ++(machine_.files.attributes(file) ? counts.failed : counts.removed);
  }
  const std::set<std::string> requests = queue();
  for (const std::string& file : stayed_) {
    const std::string request = "\\??\\" + file;
    const bool new_request = requests.contains(request) && !queue_before_.contains(request);
    ++(new_request ? counts.queued : counts.failed);
  }
  return counts;
}

RemoveResult CleaningWatch::remove_file(const std::string& path) {
  const RemoveResult result = next().remove_file(path);
  if (counting_ && result == RemoveResult::kRemoved) {
    ++removed_;
    stayed_.erase(path);
  } else if (counting_ && result != RemoveResult::kMissing) {
    stayed_.insert(path);
  }
  return result;
}

}  // namespace quillvane
