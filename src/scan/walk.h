// One run of the walker: judges what a search found, file by file, and adds rows to view1.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "scan/folder_tests.h"
#include "scan/search.h"

namespace quillvane {

class Form7;

class Walk {
 public:
  enum class Keep {
    kAll,         // every file but desktop.ini
    kEmptyFiles,  // files without content
  };

  Walk(Form7& form, int category, Keep keep);

  // Walks `path` on the disk.
  void run(const std::string& path, const std::string& pattern);
  // Walks a part of a listing that was read before; `path` is where it begins.
  void run(const ListedPart& part, const std::string& path, const std::string& pattern);

 private:
  void judge(std::shared_ptr<const Files> files);
  // False once the scan was cancelled.
  [[nodiscard]] bool judge_folder(const FolderRun& run);
  [[nodiscard]] bool passes(std::string_view name, std::optional<double> size);
  void add_row(std::size_t index);

  Form7& form_;
  int category_;
  Keep keep_;
  FolderTests tests_;
  std::shared_ptr<const Files> files_;
  std::optional<std::uint32_t> source_;  // number of the rows' source in view1
  std::uint64_t list_generation_ = 0;
  std::string full_name_;
  std::string buffer_;
};

}  // namespace quillvane
