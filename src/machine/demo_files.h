// The files of the demonstration machine, as tables: junk in each category, and beside it files
// that look like junk and must be left alone.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "platform/file_time.h"

namespace quillvane {

// One row stands for `count` files. In a name "#" is the number of the file and "*" four
// hexadecimal digits; sizes lie around `bytes`. Both depend on nothing but the row.
struct DemoFiles {
  const char* folder;
  const char* name;
  std::uint64_t bytes;
  int count = 1;
};

[[nodiscard]] std::span<const DemoFiles> demo_junk_of_windows();
[[nodiscard]] std::span<const DemoFiles> demo_junk_of_browsers();
[[nodiscard]] std::span<const DemoFiles> demo_junk_of_custom_places();
[[nodiscard]] std::span<const DemoFiles> demo_files_left_alone();

// The browsers that keep their files alike: where, and under which key they list their profiles.
struct DemoBrowser {
  const char* key;     // in HKEY_CURRENT_USER
  const char* folder;  // below the user's folder
};
[[nodiscard]] std::span<const DemoBrowser> demo_browsers();

// What each of these browsers holds; folders are below its own.
[[nodiscard]] std::span<const DemoFiles> demo_junk_of_each_browser();
[[nodiscard]] std::span<const DemoFiles> demo_files_left_alone_in_each_browser();

struct DemoFile {
  std::string path;
  std::uint64_t bytes = 0;
  FileTime time;
};

// The files of a row. `root` is put in front of its folder.
[[nodiscard]] std::vector<DemoFile> expand_demo_files(const DemoFiles& row,
                                                      const std::string& root = {});

}  // namespace quillvane
