// The names of one folder, found without regard to case. To look one up costs the same however many
// there are; a name takes its own length and some 12 bytes.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace quillvane {

class FolderNames {
 public:
  // Adds the names of an open folder as DirectoryListing has them. False when it cannot be read;
  // errno has the reason.
  [[nodiscard]] bool read(int folder);

  // Adds a name, unless it is there.
  void add(std::string_view name);

  // The names that are equal but for case, `name` itself left out, in the order of their bytes.
  [[nodiscard]] std::vector<std::string> others(std::string_view name) const;

  // Whether any two of the names are equal but for case.
  [[nodiscard]] bool has_twins() const { return has_twins_; }

  // The memory that all this takes.
  [[nodiscard]] std::size_t bytes() const {
    return names_.capacity() + slots_.capacity() * sizeof(Slot);
  }

 private:
  // Open addressing: names whose capitals are the same lie one behind the other from the slot of
  // their hash on, up to a free slot.
  struct Slot {
    std::uint32_t hash = 0;
    std::uint32_t behind = 0;  // where the name ends in names_, its NUL included; 0: a free slot
    std::uint32_t length = 0;
  };

  [[nodiscard]] std::string_view name_of(const Slot& slot) const {
    return {names_.data() + slot.behind - 1 - slot.length, slot.length};
  }
  void grow();

  std::string names_;  // each with a NUL behind it
  std::vector<Slot> slots_;
  std::size_t count_ = 0;
  bool has_twins_ = false;
};

}  // namespace quillvane
