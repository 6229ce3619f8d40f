// The search behind the walker: the files of one folder tree that match one pattern, in the order
// in which they are judged.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/file_system.h"
#include "support/error_trail.h"

namespace quillvane {

// One file found. The texts of a file whose size overflowed are those that were set before.
struct File {
  std::string FileNameFull;  // folder with its backslash, then the name
  std::string FilePath;      // folder with its backslash; empty when the size overflowed
  std::string FileName;
  FileTime Accessed;
  FileTime Modified;
  FileTime Created;
  double FileSize = 0;  // bytes, as FileSizeToDouble reads them

  // The attribute bits as the system reports them; 0 when the file has gone. They are looked up
  // when asked for: no test of a scan needs them.
  [[nodiscard]] std::uint32_t FileAttributes(const FileSystem& files) const {
    return files.attributes(FileNameFull).value_or(0);
  }
};

// Bytes from the two words of a size, in signed 32-bit arithmetic: high * 2147483647 + low. Nothing
// when that overflows. The multiplier and the sign of `low` are meant so: a file from 2 GiB to
// below 4 GiB counts as negative.
[[nodiscard]] std::optional<double> FileSizeToDouble(std::uint32_t high, std::uint32_t low);

// A part of a tree that was read, as the walk of that part would have read it.
struct ListedPart {
  std::shared_ptr<const FolderTree> tree;
  const ListedFolder* folder = nullptr;  // where the walk begins
  unsigned pattern = 0;                  // which of the patterns of the reading
};

// Files of one folder that follow each other in its listing.
struct FolderRun {
  const ListedFolder* folder = nullptr;
  std::uint32_t first = 0;  // number of the first in the folder
  std::uint32_t count = 0;
  std::size_t begin = 0;  // number of the first in the collection
};

class Files;

// Goes over a collection from its first file on. The collection outlives it.
class FilesEnumerator {
 public:
  explicit FilesEnumerator(const Files& files) : files_(files) {}
  // Nothing behind the last file.
  [[nodiscard]] std::optional<File> next();

 private:
  const Files& files_;
  std::size_t next_ = 0;
};

// The files found, in order. Names and times stay in the tree that was read; the collection keeps
// only which files of which folders belong to it.
class Files {
 public:
  // `root` is the folder where the search began, `root_path` its path with a backslash at its end.
  Files(std::shared_ptr<const FolderTree> tree, const ListedFolder& root, std::string root_path);

  void Add(const ListedFolder& folder, std::uint32_t file);
  // Takes a file out; those behind it move up by one. Requires: index < Count().
  void Remove(std::size_t index);
  [[nodiscard]] std::size_t Count() const { return count_; }
  // Counts from 0. Requires: index < Count().
  [[nodiscard]] File Item(std::size_t index) const;
  [[nodiscard]] std::string full_name(std::size_t index) const;
  // As the disk's listing gives it; its name lives as long as the collection.
  [[nodiscard]] ListedFile listed(std::size_t index) const;
  [[nodiscard]] FilesEnumerator NewEnum() const { return FilesEnumerator(*this); }

  [[nodiscard]] const std::vector<FolderRun>& runs() const { return runs_; }
  // Path of a folder of the tree, with its backslash.
  [[nodiscard]] std::string path_of(const ListedFolder& folder) const;
  [[nodiscard]] std::string full_name_in(const ListedFolder& folder, std::string_view name) const;

 private:
  [[nodiscard]] std::size_t run_of(std::size_t index) const;  // number of the run it is in

  std::shared_ptr<const FolderTree> tree_;
  const ListedFolder* root_;
  std::string root_path_;
  std::vector<FolderRun> runs_;
  std::size_t count_ = 0;
};

class Search {
 public:
  // `watch` is told of the reading (FileSystem::read_tree_watched). All must outlive it.
  Search(const FileSystem& files, ErrorTrail& trail, TreeReading* watch = nullptr)
      : file_system_(files), trail_(trail), watch_(watch) {}

  // Collects the files below `path` that match `pattern`: those of the subfolders first. A file
  // whose size overflows ends the listing of its folder; the failure goes to the error trail.
  void SearchFiles(const std::string& path, const std::string& pattern, bool recursive);
  // The same, of a listing that was read before.
  void search_listing(const ListedPart& part, const std::string& path, const std::string& pattern);

  // What SearchFiles read; null when the folder could not be.
  [[nodiscard]] const std::shared_ptr<const FolderTree>& tree() const { return tree_; }

  // What was collected; null when the folder could not be read.
  [[nodiscard]] const std::shared_ptr<class Files>& Files() const { return found_; }

 private:
  void search_folder(const ListedFolder& folder, const std::string& path);
  void add_files(const ListedFolder& folder);

  const FileSystem& file_system_;
  ErrorTrail& trail_;
  TreeReading* watch_;
  std::string pattern_;
  unsigned pattern_number_ = 0;  // of the patterns that the listing was read for
  bool recursive_ = true;
  std::shared_ptr<const FolderTree> tree_;
  std::shared_ptr<class Files> found_;
};

}  // namespace quillvane
