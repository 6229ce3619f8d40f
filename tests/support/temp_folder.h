// A folder of its own for a test, removed with everything in it when the test ends.
//
// Names are relative to the folder, with '/' between parts: folder.write("drive_c/Temp/a.tmp").
// Folders on the way are made. A step that fails fails the test.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <random>
#include <string>
#include <string_view>
#include <system_error>

#include "platform/folder/host_path.h"
#include "tests/support/remove_folder.h"

namespace quillvane {

class TempFolder {
 public:
  TempFolder() {
    namespace fs = std::filesystem;
    std::error_code failed;
    std::random_device number;
    for (int attempt = 0; attempt < kMostAttempts && !failed && path_.empty(); ++attempt) {
      const fs::path path =
          fs::temp_directory_path(failed) / ("quillvane-test-" + std::to_string(number()));
      // False when another has made it; only who made it may go in.
      if (!failed && fs::create_directory(path, failed)) path_ = host_text(path);
    }
    if (path_.empty()) ADD_FAILURE() << "cannot make a folder: " << failed.message();
    fs::permissions(host_path(path_), fs::perms::owner_all, failed);
  }
  ~TempFolder() {
    if (!path_.empty()) remove_test_folder(path_);
  }
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;

  // Absolute, without a slash at the end.
  [[nodiscard]] const std::string& path() const { return path_; }
  [[nodiscard]] std::string path_of(std::string_view name) const {
    return host_text((host_path(path_) / host_path(name)).make_preferred());
  }

  void make_folder(std::string_view name) const {
    std::error_code failed;
    std::filesystem::create_directories(host_path(path_of(name)), failed);
    EXPECT_FALSE(failed) << name << ": " << failed.message();
  }

  void write(std::string_view name, std::string_view content = {}) const {
    make_parent(name);
    std::ofstream file(host_path(path_of(name)), std::ios::binary);
    file.write(content.data(), static_cast<std::streamsize>(content.size()));
    file.close();
    EXPECT_TRUE(file.good()) << "cannot write " << name;
  }

  // A file of this many bytes that takes no room on the disk.
  void write_sparse(std::string_view name, std::uintmax_t bytes) const {
    write(name);
    std::error_code failed;
    std::filesystem::resize_file(host_path(path_of(name)), bytes, failed);
    EXPECT_FALSE(failed) << name << ": " << failed.message();
  }

  // A symbolic link that holds exactly this target, which need not exist.
  void make_link(std::string_view name, const std::string& target) const {
    make_parent(name);
    std::error_code failed;
    std::filesystem::create_symlink(host_path(target), host_path(path_of(name)), failed);
    EXPECT_FALSE(failed) << name << ": " << failed.message();
  }

  // The content of a file; nothing when it is not there.
  [[nodiscard]] std::optional<std::string> read(std::string_view name) const {
    std::ifstream file(host_path(path_of(name)), std::ios::binary);
    if (!file) return std::nullopt;
    return std::string(std::istreambuf_iterator<char>(file), {});
  }

  // Whether a file, folder or link of this name is there; a link need not lead anywhere.
  [[nodiscard]] bool has(std::string_view name) const {
    std::error_code failed;
    return std::filesystem::exists(
        std::filesystem::symlink_status(host_path(path_of(name)), failed));
  }

 private:
  void make_parent(std::string_view name) const {
    const auto slash = name.rfind('/');
    if (slash != std::string_view::npos) make_folder(name.substr(0, slash));
  }

  static constexpr int kMostAttempts = 100;

  std::string path_;
};

}  // namespace quillvane
