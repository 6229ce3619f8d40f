// Junk on the PC that the program runs on, for the length of a test.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace quillvane {

class PlantedJunk {
 public:
  PlantedJunk();
  ~PlantedJunk();
  PlantedJunk(const PlantedJunk&) = delete;
  PlantedJunk& operator=(const PlantedJunk&) = delete;

  // Two files of System Temporary, one of Log Files (512 bytes), one of Downloaded Programs (10).
  [[nodiscard]] const std::vector<std::filesystem::path>& files() const { return files_; }
  [[nodiscard]] int still_there() const;

 private:
  void add(const std::filesystem::path& file, std::size_t bytes);

  std::vector<std::filesystem::path> files_;
};

}  // namespace quillvane
