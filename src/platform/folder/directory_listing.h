// The names in one folder of the host, in the order of an NTFS folder.
//
// Left out are ".", "..", what is neither file, folder nor link (sockets and the like, which
// Windows does not know), and names with a backslash: on the machine those would be paths.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace quillvane {

class DirectoryListing {
 public:
  // kLinkToFile is never read from the host; it is for who follows the links.
  enum class Kind : std::uint8_t { kFile, kFolder, kLink, kLinkToFile };
  struct Entry {
    std::uint64_t order;    // decides where two names differ early
    std::uint32_t matches;  // for a filter of names: which patterns match
    std::uint32_t name_begin;
    std::uint16_t name_length;
    Kind kind;
  };

  DirectoryListing();

  // Replaces what was read before by the names of the open folder, in no order. False, with no
  // names, when it cannot be read.
  [[nodiscard]] bool read(int folder);

  // Leaves out the entries for which `drop` is true.
  template <typename Drop>
  void drop_if(Drop drop) {
    std::erase_if(entries_, drop);
  }

  // Whether there are entries of Kind::kLink.
  [[nodiscard]] bool has_links() const { return has_links_; }

  // By name without regard to case; names that differ only by case, by their bytes.
  void sort();

  [[nodiscard]] std::span<const Entry> entries() const { return entries_; }
  [[nodiscard]] std::span<Entry> entries() { return entries_; }
  [[nodiscard]] std::string_view name(const Entry& entry) const {
    return {buffer_.get() + entry.name_begin, entry.name_length};
  }
  // The name with a NUL behind it.
  [[nodiscard]] const char* host_name(const Entry& entry) const {
    return buffer_.get() + entry.name_begin;
  }

 private:
  void resize_buffer(std::size_t bytes, std::size_t bytes_kept);
  void add_entries(int folder, std::size_t begin, std::size_t end);

  std::unique_ptr<char[]> buffer_;  // what getdents64 wrote
  std::size_t buffer_bytes_ = 0;
  std::vector<Entry> entries_;
  bool has_links_ = false;
};

// The name as stored, for a name in any case: itself when an entry is named exactly so, otherwise
// the first in the order of the listing that differs only by case. Nothing when there is none.
[[nodiscard]] std::optional<std::string> stored_name(int folder, const std::string& name);

}  // namespace quillvane
