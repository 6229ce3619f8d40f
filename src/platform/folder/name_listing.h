// The names in one folder of the host, in the order of an NTFS folder. Each system has its own way
// to read them: those are the classes made from this one.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string_view>
#include <vector>

namespace quillvane {

class NameListing {
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

  // Leaves out the entries for which `drop` is true.
  template <typename Drop>
  void drop_if(Drop drop) {
    std::erase_if(entries_, drop);
  }

  // By name without regard to case; names that differ only by case, by their bytes.
  void sort();

  [[nodiscard]] std::span<const Entry> entries() const { return entries_; }
  [[nodiscard]] std::span<Entry> entries() { return entries_; }
  [[nodiscard]] std::string_view name(const Entry& entry) const {
    return {buffer_.get() + entry.name_begin, entry.name_length};
  }

 protected:
  explicit NameListing(std::size_t buffer_bytes) { resize_buffer(buffer_bytes, 0); }
  ~NameListing() = default;

  // What the names lie in; a few bytes behind its end can be read too.
  [[nodiscard]] char* buffer() const { return buffer_.get(); }
  [[nodiscard]] std::size_t buffer_bytes() const { return buffer_bytes_; }
  void resize_buffer(std::size_t bytes, std::size_t bytes_kept);

  // Adds a name that lies in the buffer.
  void add_entry(std::string_view name, Kind kind);
  void clear_entries() { entries_.clear(); }
  void give_up_room() { entries_.shrink_to_fit(); }

 private:
  std::unique_ptr<char[]> buffer_;
  std::size_t buffer_bytes_ = 0;
  std::vector<Entry> entries_;
};

}  // namespace quillvane
