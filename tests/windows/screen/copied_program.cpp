#include "tests/windows/screen/copied_program.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "tests/windows/screen/program_on_screen.h"

namespace quillvane {

CopiedProgram::CopiedProgram() {
  std::filesystem::remove_all(folder_);  // of a test that was ended in its middle
  std::filesystem::create_directories(folder_);
  std::filesystem::copy_file(cleaner_program(), executable());
}

// The file of a process that has just ended may be held for a moment yet.
CopiedProgram::~CopiedProgram() {
  static_cast<void>(eventually("the end of the program's folder", [this] {
    std::error_code in_use;
    std::filesystem::remove_all(folder_, in_use);
    return !in_use;
  }));
}

std::string CopiedProgram::text(const std::string& name) const {
  std::ifstream file(folder_ / name, std::ios::binary);
  if (!file) return "missing";
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

void CopiedProgram::write(const std::string& name, const std::string& content) const {
  std::ofstream file(folder_ / name, std::ios::binary);
  file << content;
  EXPECT_TRUE(file.good()) << name;
}

}  // namespace quillvane
