// A folder below %TEMP% of a test's own, gone with the object.
#pragma once

#include <string>
#include <string_view>

namespace quillvane {

class ScratchFolder {
 public:
  ScratchFolder();
  ~ScratchFolder();
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;

  // Without a backslash at its end.
  [[nodiscard]] const std::string& path() const { return path_; }
  [[nodiscard]] std::string path_of(std::string_view name) const {
    return path_ + "\\" + std::string(name);
  }

  // Makes a file and answers its path.
  std::string add_file(std::string_view name, std::string_view content) const;

  // Names of what is in the folder, in the order of their letters.
  [[nodiscard]] std::string names() const;

 private:
  std::string path_;
};

}  // namespace quillvane
