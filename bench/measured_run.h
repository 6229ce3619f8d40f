// Time and memory of one piece of work, each taken in a process of its own, so that neither the
// memory of earlier runs nor their free lists count.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>

namespace quillvane::bench {

struct Measured {
  double seconds = 0;
  std::size_t peak_bytes = 0;  // above what the process had before
  std::size_t files = 0;       // as the work tells
};

// What comes first and is not measured, then the work, which tells how many files it was about.
struct Task {
  std::function<void()> prepare = [] {};
  std::function<std::size_t()> work;
};

// Runs the task in a forked child. What it made is alive when the peak is read. Nothing when the
// child failed.
[[nodiscard]] std::optional<Measured> measure(const Task& task);

}  // namespace quillvane::bench
