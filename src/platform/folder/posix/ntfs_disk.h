// What a mounted NTFS disk keeps of Windows' own facts about its files and folders, as extended
// attributes: the true attributes, the time of the making, and where junctions and links lead.
//
// The host shows a link with a target of its own finding: a junction to D:\data as one to the
// folder data of this very disk. Only what is stored tells where Windows would go.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/file_time.h"

namespace quillvane {

// Whether the open folder lies on such a disk.
[[nodiscard]] bool lies_on_ntfs(int folder);

// What Windows finds when it opens a file or folder that carries a reparse tag.
struct NtfsLink {
  enum class Kind {
    kNone,      // no link: an ordinary file or folder, whatever else the tag means
    kRelative,  // `target` goes on from the folder that the link lies in
    kOnDrive,   // `target` goes on from the root of the drive `letter`
    kOwnRoot,   // `target` goes on from the root of the drive that the link lies on
    kNowhere,   // a volume without a letter, another computer, data that cannot be read
  };

  Kind kind = Kind::kNowhere;
  char letter = 0;     // upper case
  std::string target;  // with backslashes
};

// Of the bytes that are stored with a link.
[[nodiscard]] NtfsLink parse_ntfs_link(std::string_view reparse_data);

// A file or folder on such a disk, or a link itself. What cannot be told is nothing.
class NtfsObject {
 public:
  // The open object, which must outlive this; for finding (O_PATH) is enough.
  explicit NtfsObject(int object);
  // The entry `name` of an open folder.
  NtfsObject(int folder, const std::string& name);

  [[nodiscard]] std::optional<std::uint32_t> attributes() const;
  // Replaces the attributes in `mask`. False when the host refuses.
  [[nodiscard]] bool set_attributes(std::uint32_t mask, std::uint32_t bits) const;
  [[nodiscard]] std::optional<FileTime> created() const;
  [[nodiscard]] NtfsLink link() const;

 private:
  [[nodiscard]] std::optional<std::string> stored(const char* name) const;

  std::string path_;
  bool is_entry_;  // links at the end of its path are its own
};

}  // namespace quillvane
