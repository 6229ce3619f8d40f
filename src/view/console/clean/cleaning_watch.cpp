#include "view/console/clean/cleaning_watch.h"

#include <utility>

#include "platform/multi_string.h"

namespace quillvane {

CleaningWatch::CleaningWatch(const Platform& machine) : machine_(machine) {}

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
  const RemoveResult result = machine_.files.remove_file(path);
  if (counting_ && result == RemoveResult::kRemoved) {
    ++removed_;
    stayed_.erase(path);
  } else if (counting_ && result != RemoveResult::kMissing) {
    stayed_.insert(path);
  }
  return result;
}

std::shared_ptr<const FolderTree> CleaningWatch::read_tree(const std::string& folder,
                                                           const std::string& pattern) const {
  return machine_.files.read_tree(folder, pattern);
}

std::shared_ptr<const FolderTree> CleaningWatch::read_tree_for(
    const std::string& folder, const std::vector<std::string>& patterns) const {
  return machine_.files.read_tree_for(folder, patterns);
}

std::vector<FolderEntry> CleaningWatch::list_folder(const std::string& folder,
                                                    const std::string& pattern) const {
  return machine_.files.list_folder(folder, pattern);
}

std::optional<std::uint32_t> CleaningWatch::attributes(const std::string& path) const {
  return machine_.files.attributes(path);
}

bool CleaningWatch::set_attributes(const std::string& path, std::uint32_t bits) {
  return machine_.files.set_attributes(path, bits);
}

std::optional<std::uint64_t> CleaningWatch::file_size(const std::string& path) const {
  return machine_.files.file_size(path);
}

std::optional<std::string> CleaningWatch::read_file(const std::string& path) const {
  return machine_.files.read_file(path);
}

bool CleaningWatch::write_file(const std::string& path, std::string_view content) {
  return machine_.files.write_file(path, content);
}

bool CleaningWatch::can_open(const std::string& path) const {
  return machine_.files.can_open(path);
}

bool CleaningWatch::rename_file(const std::string& from, const std::string& to) {
  return machine_.files.rename_file(from, to);
}

bool CleaningWatch::copy_file(const std::string& from, const std::string& to) {
  return machine_.files.copy_file(from, to);
}

bool CleaningWatch::make_folder(const std::string& path) {
  return machine_.files.make_folder(path);
}

}  // namespace quillvane
