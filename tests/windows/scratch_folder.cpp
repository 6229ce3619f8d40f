#include "tests/windows/scratch_folder.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <filesystem>
#include <fstream>
#include <set>

#include "platform/win32/wide_text.h"

namespace quillvane {

namespace {

std::filesystem::path host(const std::string& path) { return widen(path); }

}  // namespace

ScratchFolder::ScratchFolder() {
  static unsigned made = 0;  // so that what one test left does not disturb the next
  const std::string name =
      "quillvane-" + std::to_string(GetCurrentProcessId()) + "-" + std::to_string(++made);
  path_ = narrow((std::filesystem::temp_directory_path() / name).native());
  EXPECT_TRUE(std::filesystem::create_directory(host(path_))) << path_;
}

ScratchFolder::~ScratchFolder() {
  std::error_code problem;
  std::filesystem::remove_all(host(path_), problem);
  EXPECT_FALSE(problem) << path_ << ": " << problem.message();
}

std::string ScratchFolder::add_file(std::string_view name, std::string_view content) const {
  const std::string path = path_of(name);
  std::ofstream file(host(path), std::ios::binary);
  file << content;
  file.close();
  EXPECT_TRUE(file.good()) << path;
  return path;
}

std::string ScratchFolder::names() const {
  std::set<std::string> sorted;
  for (const auto& entry : std::filesystem::directory_iterator(host(path_))) {
    sorted.insert(narrow(entry.path().filename().native()));
  }
  std::string names;
  for (const std::string& name : sorted) names += (names.empty() ? "" : " ") + name;
  return names;
}

}  // namespace quillvane
