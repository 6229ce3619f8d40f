// A piece of work and its yardstick, run in turn, and what their pairs tell. On a machine that does
// other work too, only the ratio of a pair says something.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "bench/make_tree.h"
#include "bench/measured_run.h"

namespace quillvane::bench {

struct Options {
  std::uint32_t files = 200'000;
  std::string folder;  // gets the tree when it is not there yet, and is left to whoever named it
  std::uint32_t threads = 1;
  std::uint32_t pairs = 9;
  TreeShape shape = TreeShape::kTree;
  std::uint32_t list_megabytes = 0;  // length of the ignore list and of the pending queue
  std::uint32_t names = 0;           // names that a search leaves out
  std::uint32_t suite = 0;           // 1: what telling the suite costs is measured
};

// --dir DIR, --files N, --threads N, --pairs N, --lists MB, --names N, --suite 1, --shape
// tree|flat|folders|deep. False when the words are off.
[[nodiscard]] bool read_options(int count, char** words, Options& options);

// Makes the tree unless it is there. In a process of its own too: memory that this one has had
// would be given to the walks. False, with a line on standard error, when the tree cannot be had.
[[nodiscard]] bool have_tree(const Options& options);

// Runs both, the yardstick first; each tells how many files it found, which must be options.files.
// The first pair only warms the host's memory of the tree. Prints each pair and the medians of
// times, ratio and bytes a file; answers the exit status.
int run_pairs(const Options& options, std::string_view subject,
              const std::function<std::size_t()>& yardstick,
              const std::function<std::size_t()>& work);

// The same for work that can be done only once on a tree: `yardstick` and `work` make the task for
// the pair of the given number, 0 to options.pairs.
int run_numbered_pairs(const Options& options, std::string_view subject,
                       const std::function<Task(std::uint32_t)>& yardstick,
                       const std::function<Task(std::uint32_t)>& work);

}  // namespace quillvane::bench
