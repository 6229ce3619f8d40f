// The walker's tests that look for a file's folder in a list: the ignore list and the queue of
// files that go at the next restart.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "scan/searchable_text.h"

namespace quillvane {

// The answers hold for all files of a folder and are kept until a list changes.
class FolderTests {
 public:
  FolderTests(const SearchableText& pending, const SearchableText& ignored)
      : pending_(pending), ignored_(ignored) {}

  // `path` ends in a backslash.
  void enter(std::string_view path);

  // Whether the folder occurs in the ignore list.
  [[nodiscard]] bool ignored();
  // Whether the folder's path holds "desktop.ini", which hides all its files.
  [[nodiscard]] bool desktop_ini() const { return desktop_ini_; }
  // Whether the folder's file of that name occurs in the queue.
  [[nodiscard]] bool pending(std::string_view name);

 private:
  void refresh();
  void answer();
  [[nodiscard]] bool in_ignore_list() const;

  const SearchableText& pending_;
  const SearchableText& ignored_;
  std::uint64_t pending_version_ = 0;
  std::uint64_t ignored_version_ = 0;
  std::string lower_path_;
  std::string file_;
  bool desktop_ini_ = false;
  bool folder_pending_ = false;
  bool folder_ignored_ = false;
};

// Whether a name holds "desktop.ini", in whatever case.
[[nodiscard]] bool holds_desktop_ini(std::string_view name);

}  // namespace quillvane
