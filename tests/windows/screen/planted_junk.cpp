#include "tests/windows/screen/planted_junk.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>

namespace quillvane {

PlantedJunk::PlantedJunk() {
  add("C:\\windows\\Temp\\qv-large.tmp", 1'500'000);
  add("C:\\windows\\Temp\\qv-sub\\small.log", 24);
  add("C:\\windows\\Logs\\CBS\\qv-setup.log", 512);
  add("C:\\windows\\Downloaded Program Files\\qv-player.ocx", 10);
}

PlantedJunk::~PlantedJunk() {
  std::error_code gone_already;
  for (const auto& file : files_) std::filesystem::remove(file, gone_already);
  std::filesystem::remove("C:\\windows\\Temp\\qv-sub", gone_already);
}

void PlantedJunk::add(const std::filesystem::path& file, std::size_t bytes) {
  std::filesystem::create_directories(file.parent_path());
  std::ofstream(file, std::ios::binary) << std::string(bytes, 'x');
  EXPECT_TRUE(std::filesystem::exists(file)) << file;
  files_.push_back(file);
}

int PlantedJunk::still_there() const {
  return static_cast<int>(std::count_if(files_.begin(), files_.end(), [](const auto& file) {
    return std::filesystem::exists(file);
  }));
}

}  // namespace quillvane
