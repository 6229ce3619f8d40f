// The program in a folder of its own, whose files a test may write and spoil.
#pragma once

#include <filesystem>
#include <string>

namespace quillvane {

class CopiedProgram {
 public:
  CopiedProgram();
  // The program must have ended.
  ~CopiedProgram();
  CopiedProgram(const CopiedProgram&) = delete;
  CopiedProgram& operator=(const CopiedProgram&) = delete;

  [[nodiscard]] const std::filesystem::path& folder() const { return folder_; }
  [[nodiscard]] std::filesystem::path executable() const {
    return folder_ / "QuillvaneDiskCleaner.exe";
  }
  // A file beside the executable, as it stands; "missing" without one.
  [[nodiscard]] std::string text(const std::string& name) const;
  void write(const std::string& name, const std::string& content) const;

 private:
  std::filesystem::path folder_ = "C:\\qv-program";
};

}  // namespace quillvane
