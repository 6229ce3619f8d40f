#include "scan/folder_tests.h"

#include "platform/unicode_case.h"

namespace quillvane {

namespace {

constexpr std::string_view kNeverListed = "desktop.ini";

// Whether a name has a "." with something behind it that may be an "i" in lower case.
bool has_point_before_i(std::string_view name) {
  for (std::size_t point = name.find('.'); point < name.size() - 1;
       point = name.find('.', point + 1)) {
    const char next = name[point + 1];
    if (next == 'i' || next == 'I' || static_cast<unsigned char>(next) >= 0x80) return true;
  }
  return false;
}

}  // namespace

// Most names are told apart from it without folding them.
bool holds_desktop_ini(std::string_view name) {
  if (name.size() < kNeverListed.size() || !has_point_before_i(name)) return false;
  return lower_case(name).find(kNeverListed) != std::string::npos;
}

void FolderTests::enter(std::string_view path) {
  lower_path_ = lower_case(path);
  desktop_ini_ = lower_path_.find(kNeverListed) != std::string::npos;
  answer();
}

bool FolderTests::ignored() {
  refresh();
  return folder_ignored_;
}

// The text of a file that is queued holds its folder's, so most files need no look of their own.
bool FolderTests::pending(std::string_view name) {
  refresh();
  if (!folder_pending_) return false;
  file_ = lower_path_;
  append_lower_case(name, file_);
  return pending_.contains(file_);
}

void FolderTests::refresh() {
  if (pending_version_ != pending_.version() || ignored_version_ != ignored_.version()) answer();
}

void FolderTests::answer() {
  pending_version_ = pending_.version();
  ignored_version_ = ignored_.version();
  folder_pending_ = pending_.contains(lower_path_);
  folder_ignored_ = in_ignore_list();
}

// An entry that names the folder without its backslash counts as if it had one.
bool FolderTests::in_ignore_list() const {
  if (ignored_.contains(lower_path_)) return true;
  std::string as_entry_end = lower_path_;
  as_entry_end.back() = '|';
  return ignored_.contains(as_entry_end);
}

}  // namespace quillvane
