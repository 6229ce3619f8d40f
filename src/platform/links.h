// Shell links: the small files ("*.lnk") that lead to another file.
#pragma once

#include <cstddef>
#include <string>

namespace quillvane {

// What a link holds. Texts are UTF-8; reading gives at most kMostLinkText UTF-16 units of each.
struct LinkContent {
  std::string target = {};  // where the link leads; empty when that is no file or folder
  std::string working_directory = {};
  std::string arguments = {};
  std::string icon_file = {};
  int icon_index = 0;
  int show_command = 1;     // 1 normal, 3 maximised, 7 minimised; all else is stored as 1
  bool has_target = false;  // by reading: the target was asked for and told, be it empty
};

// A buffer of 255 characters takes so many and a zero.
inline constexpr std::size_t kMostLinkText = 254;

class Links {
 public:
  virtual ~Links() = default;

  // Reads the link `path`; the stored target is told, whether or not it is there, and never
  // searched for. False when a step failed: what was read until then stays in `content`. A file
  // that is no link, or is torn, is none of which anything is read.
  [[nodiscard]] virtual bool read_link(const std::string& path, LinkContent& content) = 0;

  // Makes a link, or replaces the one of that path; empty texts are left out, and the description
  // is "Access Shortcut". False when it could not be made: an old one is then as it was.
  [[nodiscard]] virtual bool write_link(const std::string& path, const LinkContent& content) = 0;
};

}  // namespace quillvane
