// The yardstick of a scan: the least that a program can do that reads a tree of files and keeps
// what it has read. Each folder is read by getdents64 with a buffer of 256 KB, each file asked for
// size and times by one statx; names, sizes and times stay in memory. One thread, no order.
#pragma once

#include <sys/stat.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace quillvane::bench {

class BareWalk {
 public:
  explicit BareWalk(const std::string& folder);

  [[nodiscard]] std::size_t file_count() const { return file_count_; }

 private:
  struct Row {
    std::uint64_t size;
    std::int64_t created;
    std::int64_t accessed;
    std::int64_t modified;
    std::uint32_t folder;
    std::uint32_t name_length;
    // the name follows
  };

  void read_folder(int folder, const std::string& path);
  // The size of the entries read into buffer_; 0 when there are no more.
  std::size_t read_entries(int folder);
  void keep(std::uint32_t folder, std::string_view name, const struct statx& status);
  char* room_for(std::size_t bytes);

  std::unique_ptr<char[]> buffer_;
  std::vector<std::unique_ptr<char[]>> blocks_;
  char* next_ = nullptr;
  std::size_t left_ = 0;
  std::vector<std::string> folders_;
  std::size_t file_count_ = 0;
};

// Walks a tree and keeps what was read until the next call, so that to give the memory back is not
// part of the walk. Answers the number of files.
[[nodiscard]] std::size_t walk_bare(const std::string& folder);

}  // namespace quillvane::bench
