// The files of a machine folder on Windows.
#pragma once

#include <span>

#include "platform/folder/machine_files.h"
#include "platform/folder/win32/host_drive.h"
#include "platform/folder/windows_path.h"

namespace quillvane {

class WindowsMachineFiles final : public MachineFiles {
 public:
  explicit WindowsMachineFiles(const MachineState& machine) : machine_(machine) {}

  [[nodiscard]] std::shared_ptr<const FolderTree> read_tree_watched(
      const std::string& folder, const TreeRequest& request, TreeReading* watch) const override;
  [[nodiscard]] std::vector<FolderEntry> list_folder(const std::string& folder,
                                                     const std::string& pattern) const override;
  [[nodiscard]] std::optional<std::uint32_t> attributes(const std::string& path) const override;
  [[nodiscard]] bool set_attributes(const std::string& path, std::uint32_t bits) override;
  [[nodiscard]] std::optional<std::uint64_t> file_size(const std::string& path) const override;
  [[nodiscard]] FileContent read_file(const std::string& path) const override;
  [[nodiscard]] bool write_file(const std::string& path, std::string_view content) override;
  [[nodiscard]] bool can_open(const std::string& path) const override;
  [[nodiscard]] bool rename_file(const std::string& from, const std::string& to) override;
  // The copy has the attributes and the time of the last writing too.
  [[nodiscard]] bool copy_file(const std::string& from, const std::string& to) override;
  [[nodiscard]] bool make_folder(const std::string& path) override;
  [[nodiscard]] RemoveResult remove_file(const std::string& path) override;
  void remove_contents(const std::string& folder) override;

 private:
  // What stands under a name of a drive.
  struct Named {
    HostDrive drive;
    HeldEntry entry;
    HeldPlace target;  // where it leads; the same when it is no link

    [[nodiscard]] bool is_link() const;
    // The file itself; nothing for a link, or when the host refuses.
    [[nodiscard]] std::optional<HeldPlace> open(Access access) const;
  };

  [[nodiscard]] HostDrive drive(const WindowsPath& path) const;
  // What a path leads to, links followed.
  [[nodiscard]] std::optional<HeldPlace> find(const std::string& path, Access access) const;
  [[nodiscard]] std::optional<Named> find_named(const std::string& path) const;
  // A name that is free, in a folder that is there.
  [[nodiscard]] std::optional<HeldEntry> free_name(const std::string& path) const;
  [[nodiscard]] bool replace_file(Named old, std::string_view content);

  [[nodiscard]] bool is_in_use(const HeldPlace& file) const;
  [[nodiscard]] std::vector<HostIdentity> denied() const;

  const MachineState& machine_;
};

}  // namespace quillvane
