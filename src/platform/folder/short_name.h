// The second, short name (8.3) that a Windows disk gives to a long file name: "a.tmpx" is also
// "A~1.TMP". Patterns match it too, so "*.tmp" finds "a.tmpx".
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>

namespace quillvane {

// Whether the name is itself of the form 8.3 and so has no other. Case is of no account.
[[nodiscard]] bool is_short_name(std::string_view name);

// What stands behind the number in the name's short name, with its dot: ".TMP" for "a.tmpx"; empty
// for a name without extension. Requires: !is_short_name(name).
[[nodiscard]] std::string short_extension(std::string_view name);

// Gives the names of one folder their short names.
//
// A disk numbers names that begin alike in the order in which they were made. That order is not
// known here, so the order of the listing stands for it.
class ShortNames {
 public:
  // First each name of the folder that is_short_name, so that no other gets it.
  void reserve(std::string_view short_name);

  // Then each other name, in the order of the listing.
  [[nodiscard]] std::string make(std::string_view name);

 private:
  std::unordered_set<std::string> taken_;
  std::unordered_map<std::string, std::size_t> last_number_;  // by cleaned base and extension
};

}  // namespace quillvane
