// Measures the walk of a machine folder against a bare walk of the same tree, in turn and warm:
//
//   quillvane_bench_walk --files 200000 --dir DIR --threads 2 --pairs 9
//
// DIR gets the tree when it is not there yet, and is left to whoever named it. Prints each pair and
// the medians. On a machine that does other work too, only the ratio of a pair says something.
#include <algorithm>
#include <charconv>
#include <cstdint>
#include <cstdio>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "bench/bare_walk.h"
#include "bench/make_tree.h"
#include "bench/measured_run.h"
#include "platform/folder/folder_file_system.h"
#include "platform/folder/machine_state.h"

namespace quillvane::bench {

namespace {

struct Options {
  std::uint32_t files = 200'000;
  std::string folder;
  std::uint32_t threads = 1;
  std::uint32_t pairs = 9;
};

bool read_number(std::string_view text, std::uint32_t& number) {
  const auto end = text.data() + text.size();
  const auto read = std::from_chars(text.data(), end, number);
  return read.ec == std::errc() && read.ptr == end && number > 0;
}

bool read_options(int count, char** words, Options& options) {
  for (int i = 1; i + 1 < count; i += 2) {
    const std::string_view name = words[i];
    const std::string_view value = words[i + 1];
    const bool good = name == "--files"     ? read_number(value, options.files)
                      : name == "--threads" ? read_number(value, options.threads)
                      : name == "--pairs"   ? read_number(value, options.pairs)
                      : name == "--dir"     ? !(options.folder = value).empty()
                                            : false;
    if (!good) return false;
  }
  return count % 2 == 1 && !options.folder.empty();
}

std::size_t count_files(const ListedFolder& folder) {
  std::size_t count = folder.file_count();
  for (const auto* sub = folder.first_subfolder(); sub != nullptr; sub = sub->next_sibling()) {
    count += count_files(*sub);
  }
  return count;
}

std::size_t walk_machine(const Options& options) {
  MachineState machine;
  machine.drives = {{'C', DriveType::kFixed, options.folder + "/tree", {}, {}}};
  const FolderFileSystem files(machine, options.threads);
  // Kept on purpose: to give the memory back is not part of the walk.
  static std::shared_ptr<const FolderTree> tree;
  tree = files.read_tree("C:\\", "*.*");
  return tree ? count_files(tree->root()) : 0;
}

std::size_t walk_bare(const Options& options) {
  static std::unique_ptr<BareWalk> walk;
  walk = std::make_unique<BareWalk>(options.folder + "/tree");
  return walk->file_count();
}

double median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  const std::size_t middle = values.size() / 2;
  return values.size() % 2 == 1 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

double bytes_per_file(const Measured& measured) {
  return static_cast<double>(measured.peak_bytes) / static_cast<double>(measured.files);
}

// What the pairs of one run tell.
struct Results {
  std::vector<double> yardstick_seconds;
  std::vector<double> walk_seconds;
  std::vector<double> ratios;
  std::vector<double> walk_bytes;  // a file

  void add(const Measured& yardstick, const Measured& walk) {
    yardstick_seconds.push_back(yardstick.seconds);
    walk_seconds.push_back(walk.seconds);
    ratios.push_back(walk.seconds / yardstick.seconds);
    walk_bytes.push_back(bytes_per_file(walk));
    std::printf("yardstick %.3f s, walk %.3f s, ratio %.3f\n", yardstick.seconds, walk.seconds,
                ratios.back());
  }
  void print(const Options& options) const {
    std::printf(
        "%u files, %u threads, medians: yardstick %.3f s, walk %.3f s, ratio %.3f, "
        "%.1f bytes a file\n",
        options.files, options.threads, median(yardstick_seconds), median(walk_seconds),
        median(ratios), median(walk_bytes));
  }
};

int run(const Options& options) {
  // In a process of its own too: memory that this one has had would be given to the walks.
  const auto made = measure([&] {
    return make_tree({options.folder, options.files}) ? std::size_t{options.files} : 0;
  });
  if (!made || made->files != options.files) return 1;
  Results results;
  for (std::uint32_t pair = 0; pair <= options.pairs; ++pair) {
    const auto yardstick = measure([&] { return walk_bare(options); });
    const auto walk = measure([&] { return walk_machine(options); });
    if (!yardstick || !walk || yardstick->files != options.files || walk->files != options.files) {
      std::fprintf(stderr, "a walk did not find the %u files\n", options.files);
      return 1;
    }
    // The first pair only warms the host's memory of the tree.
    if (pair > 0) results.add(*yardstick, *walk);
  }
  results.print(options);
  return 0;
}

}  // namespace

}  // namespace quillvane::bench

int main(int count, char** words) {
  quillvane::bench::Options options;
  if (!quillvane::bench::read_options(count, words, options)) {
    std::fprintf(stderr, "usage: %s --dir DIR [--files N] [--threads N] [--pairs N]\n", words[0]);
    return 1;
  }
  return quillvane::bench::run(options);
}
