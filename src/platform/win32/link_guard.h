// Keeps a walk out of circles made by links (junctions, symbolic links to folders), and in
// proportion where they multiply.
//
// Only behind a link can a folder lie in itself. So the folders on the way down are compared, each
// by the number the disk knows it by, as soon as a link is on the way; a walk that meets no link
// asks the disk nothing.
#pragma once

#include <windows.h>

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "platform/link_budget.h"

namespace quillvane {

class LinkGuard {
 public:
  enum class Step {
    kEntered,
    kLoop,        // the walk is in this folder already
    kPassedOver,  // a link to what was read before, of which there was too much (LinkBudget)
  };

  // Steps into the folder `path`, which lies in the one stepped into last, if it is to be read.
  [[nodiscard]] Step enter(const std::wstring& path, bool is_link);

  // How many entries the folder had that was stepped into last.
  void note_read(std::size_t entries) { links_.note_read(levels_.back().is_read_again, entries); }

  // Steps out of the folder stepped into last.
  void leave() { levels_.pop_back(); }

 private:
  struct Level {
    std::size_t path_length;  // the folders on the way are leading parts of one path
    bool is_behind_link;
    bool is_read_again = false;        // the walk has read it before, by another way
    std::optional<FolderIdentity> id;  // looked up when first needed
  };

  [[nodiscard]] static std::optional<FolderIdentity> id_of(const std::wstring& path);
  [[nodiscard]] bool is_on_the_way(const FolderIdentity& id, const std::wstring& path);

  std::vector<Level> levels_;
  LinkBudget links_;
};

}  // namespace quillvane
