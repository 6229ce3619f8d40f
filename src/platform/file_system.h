// Files and folders of the Windows machine the program works on.
//
// Paths are absolute Windows paths ("C:\Temp\a.tmp"), bytes in the program's code page (UTF-8;
// bytes that are no UTF-8 are passed through). Case never matters in a name. Sizes are bytes.
// No call throws or shows a message: failure is the return value, and the caller decides
// whether to go on.
//
// Patterns are those of FindFirstFileA: "*.*" is every name, "History.*" also matches "History",
// and a long name is matched by its short 8.3 name too.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/file_content.h"
#include "platform/file_time.h"
#include "platform/folder_tree.h"
#include "platform/tree_reading.h"
#include "platform/tree_request.h"

namespace quillvane {

// File attribute bits, as Windows numbers them.
inline constexpr std::uint32_t kAttributeReadOnly = 0x01;
inline constexpr std::uint32_t kAttributeHidden = 0x02;
inline constexpr std::uint32_t kAttributeSystem = 0x04;
inline constexpr std::uint32_t kAttributeFolder = 0x10;
inline constexpr std::uint32_t kAttributeArchive = 0x20;
inline constexpr std::uint32_t kAttributeNormal = 0x80;
inline constexpr std::uint32_t kAttributeTemporary = 0x100;
inline constexpr std::uint32_t kAttributeCompressed = 0x800;

// One entry of a folder's listing.
struct FolderEntry {
  std::string name;  // as stored
  std::uint32_t attributes = 0;
  std::uint64_t size_bytes = 0;
  FileTime created;
  FileTime accessed;
  FileTime modified;

  [[nodiscard]] bool is_folder() const { return (attributes & kAttributeFolder) != 0; }
};

enum class RemoveResult {
  kRemoved,
  kMissing,     // nothing was there: the disk says so, or the text is no path on one
  kInUse,       // another process holds it open; a restart would free it
  kDenied,      // read-only, or the rights are missing
  kTooLong,     // its path has 260 characters or more and was not looked at; a listing may show it
  kUnreadable,  // whether it is there cannot be told: the disk fails, or the way may not be gone
  kWriteProtected,  // the disk is there for reading alone; no restart would change that
};

class FileSystem {
 public:
  virtual ~FileSystem() = default;

  // Reads `folder` and, unless the request wants it alone, everything below it, each folder once:
  // of the files those whose names match one of its patterns (ListedFolder tells which); of the
  // folders all. Links to folders are entered like folders; one that leads back to a
  // folder it lies in is not entered again along that path. A folder that cannot be read is there
  // without contents. Where links multiply, some of them are passed over, so that the work stays in
  // proportion to the folders that are there (FolderTree::left_out_links). Null when `folder`
  // itself cannot be listed, or the request asks for more than FolderTree can tell. `watch` is told
  // how far the reading has come and may end it: then the tree holds what was read until then
  // (FolderTree::ended_early). Null: nobody watches. May read with threads of its own; the order of
  // the result does not depend on them.
  [[nodiscard]] virtual std::shared_ptr<const FolderTree> read_tree_watched(
      const std::string& folder, const TreeRequest& request, TreeReading* watch) const = 0;

  // The same, unwatched.
  [[nodiscard]] std::shared_ptr<const FolderTree> read_tree_for(const std::string& folder,
                                                                const TreeRequest& request) const {
    return read_tree_watched(folder, request, nullptr);
  }
  [[nodiscard]] std::shared_ptr<const FolderTree> read_tree(const std::string& folder,
                                                            const std::string& pattern) const {
    return read_tree_for(folder, {pattern});
  }

  // The entries of one folder that match, "." and ".." left out. Empty when it cannot be listed.
  // `folder` may end in a backslash or not.
  [[nodiscard]] virtual std::vector<FolderEntry> list_folder(const std::string& folder,
                                                             const std::string& pattern) const = 0;

  // Attributes of a file or folder; nothing when the path is missing.
  [[nodiscard]] virtual std::optional<std::uint32_t> attributes(const std::string& path) const = 0;

  // Replaces the attributes that can be set (read-only, hidden, system, archive; 0x80 clears all).
  [[nodiscard]] virtual bool set_attributes(const std::string& path, std::uint32_t bits) = 0;

  // Size of a file in bytes; nothing when the path is missing or is a folder.
  [[nodiscard]] virtual std::optional<std::uint64_t> file_size(const std::string& path) const = 0;

  // The whole content of a file, or why it cannot be told. Links are followed; one that leads
  // nowhere is there and cannot be read.
  [[nodiscard]] virtual FileContent read_file(const std::string& path) const = 0;

  // Makes the file hold exactly `content`. It is written beside and then put in place, so that a
  // failure or a crash leaves the old content or none, never a part of the new.
  [[nodiscard]] virtual bool write_file(const std::string& path, std::string_view content) = 0;

  // Whether the file can be opened for reading now.
  [[nodiscard]] virtual bool can_open(const std::string& path) const = 0;

  // Gives a file another name; false when it cannot be, or the new name is taken.
  [[nodiscard]] virtual bool rename_file(const std::string& from, const std::string& to) = 0;

  // Copies a file; one that is there under the new name is replaced.
  [[nodiscard]] virtual bool copy_file(const std::string& from, const std::string& to) = 0;

  // Makes one folder; false when it cannot be made or is there already.
  [[nodiscard]] virtual bool make_folder(const std::string& path) = 0;

  // Removes one file. Never removes a folder.
  [[nodiscard]] virtual RemoveResult remove_file(const std::string& path) = 0;
};

// Whether `name` matches `pattern` by the rules above, its short name aside.
// The pattern language is the same on every platform; Windows' own calls apply it themselves.
[[nodiscard]] bool matches_file_pattern(std::string_view name, std::string_view pattern);

}  // namespace quillvane
