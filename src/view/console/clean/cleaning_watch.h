// What a cleaning run did to each file: found out by looking on, since the run itself keeps no
// record.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "platform/platform.h"

namespace quillvane {

struct CleaningCounts {
  int removed = 0;  // gone
  int queued = 0;   // go at the next restart, by this run's request
  int failed = 0;   // neither
};

// Stands between the program and the machine's files and notes what becomes of removals. All other
// calls pass through.
class CleaningWatch final : public FileSystem {
 public:
  explicit CleaningWatch(const Platform& machine);

  // Begins to count; `bin_files` are the rows of the recycle bin, which goes as a whole.
  void begin(std::vector<std::string> bin_files);
  // Looks where the files are now.
  [[nodiscard]] CleaningCounts end() const;

  [[nodiscard]] std::shared_ptr<const FolderTree> read_tree(
      const std::string& folder, const std::string& pattern) const override;
  [[nodiscard]] std::shared_ptr<const FolderTree> read_tree_for(
      const std::string& folder, const std::vector<std::string>& patterns) const override;
  [[nodiscard]] std::vector<FolderEntry> list_folder(const std::string& folder,
                                                     const std::string& pattern) const override;
  [[nodiscard]] std::optional<std::uint32_t> attributes(const std::string& path) const override;
  [[nodiscard]] bool set_attributes(const std::string& path, std::uint32_t bits) override;
  [[nodiscard]] std::optional<std::uint64_t> file_size(const std::string& path) const override;
  [[nodiscard]] std::optional<std::string> read_file(const std::string& path) const override;
  [[nodiscard]] bool write_file(const std::string& path, std::string_view content) override;
  [[nodiscard]] bool can_open(const std::string& path) const override;
  [[nodiscard]] bool rename_file(const std::string& from, const std::string& to) override;
  [[nodiscard]] bool copy_file(const std::string& from, const std::string& to) override;
  [[nodiscard]] bool make_folder(const std::string& path) override;
  [[nodiscard]] RemoveResult remove_file(const std::string& path) override;

 private:
  [[nodiscard]] std::set<std::string> queue() const;

  Platform machine_;
  bool counting_ = false;
  int removed_ = 0;
  std::set<std::string> stayed_;  // files that could not be removed
  std::vector<std::string> bin_files_;
  std::set<std::string> queue_before_;  // requests of the queue when counting began
};

}  // namespace quillvane
