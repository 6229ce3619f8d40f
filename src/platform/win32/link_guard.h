// Keeps a walk out of circles made by links (junctions, symbolic links to folders).
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

namespace quillvane {

class LinkGuard {
 public:
  // Steps into the folder `path`, which lies in the one stepped into last. False when it is one of
  // those that the walk is in already; then it is not stepped into.
  [[nodiscard]] bool enter(const std::wstring& path, bool is_link);

  // Steps out of the folder stepped into last.
  void leave() { levels_.pop_back(); }

 private:
  struct FolderId {
    DWORD volume;
    DWORD high;
    DWORD low;

    friend bool operator==(const FolderId&, const FolderId&) = default;
  };
  struct Level {
    std::size_t path_length;  // the folders on the way are leading parts of one path
    bool is_behind_link;
    std::optional<FolderId> id;  // looked up when first needed
  };

  [[nodiscard]] static std::optional<FolderId> id_of(const std::wstring& path);
  [[nodiscard]] bool is_on_the_way(const FolderId& id, const std::wstring& path);

  std::vector<Level> levels_;
};

}  // namespace quillvane
