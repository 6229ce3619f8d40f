// A file that is written beside another and then takes its place at one stroke.
//
// The names of such files are few and always the same, so that what a program that was killed left
// behind is found by the next, which takes it away. A file in work is locked; one that is not is
// a leftover. What bears such a name without being one, a link or a file with a second name, is
// left alone.
#pragma once

#include <sys/types.h>

#include <string>
#include <string_view>
#include <system_error>

#include "platform/folder/posix/descriptor.h"

namespace quillvane {

class FileBeside {
 public:
  // Makes an empty file in the open folder `folder`, which must outlive it. `mode` are its
  // permissions as for open(2).
  FileBeside(int folder, mode_t mode);
  // Takes the file away unless it was put in place.
  ~FileBeside();
  FileBeside(const FileBeside&) = delete;
  FileBeside& operator=(const FileBeside&) = delete;

  // Why no file could be made.
  [[nodiscard]] std::error_code problem() const { return problem_; }
  // To write to; -1 with a problem.
  [[nodiscard]] int file() const { return file_.number(); }

  // Sees that the content is on the disk, gives the file the name `name` in the same folder, and
  // sees that this is on the disk too. A failure leaves what bore the name as it was.
  [[nodiscard]] std::error_code put_in_place(const std::string& name);

 private:
  [[nodiscard]] bool make(mode_t mode);

  int folder_;
  std::string name_;
  Descriptor file_;
  std::error_code problem_;
  bool in_place_ = false;
};

// Writes all of it; false, with errno set, when that fails.
[[nodiscard]] bool write_all(int file, std::string_view content);

}  // namespace quillvane
