// The folder of all profiles of a Chromium browser to measure a category on: two profiles with what
// such folders hold, the same each time. Names are about as long as the real ones; files take no
// room on the disk.
#pragma once

#include <cstdint>
#include <string>

namespace quillvane::bench {

// How often the files of a folder are found, by the list of Chrome and by that of Yandex.
struct Finds {
  std::uint64_t by_chrome = 0;
  std::uint64_t by_yandex = 0;
};

// Makes `folder` with `files` files in the profiles "Default" and "Profile 1", unless it is there
// already, complete. Anything half made or of another size is refused. Requires: files is at least
// 2000. False, with a line on standard error, when it cannot be had.
[[nodiscard]] bool make_user_data(const std::string& folder, std::uint32_t files);

// What the rows of both lists find there, counted from the plan and not by a walk.
[[nodiscard]] Finds finds_in_user_data(std::uint32_t files);

}  // namespace quillvane::bench
