// Measures the walk of a machine folder against a bare walk of the same tree, warm:
//
//   quillvane_bench_walk --files 200000 --dir DIR --threads 2 --pairs 9
#include <cstdio>
#include <memory>

#include "bench/bare_walk.h"
#include "bench/pairs.h"
#include "platform/folder/machine_state.h"
#include "platform/folder/posix/folder_file_system.h"

namespace quillvane::bench {

namespace {

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

}  // namespace

}  // namespace quillvane::bench

int main(int count, char** words) {
  using namespace quillvane::bench;
  Options options;
  if (!read_options(count, words, options)) {
    std::fprintf(stderr, "usage: %s --dir DIR [--files N] [--threads N] [--pairs N]\n", words[0]);
    return 1;
  }
  if (!have_tree(options)) return 1;
  return run_pairs(
      options, "walk", [&] { return walk_bare(options.folder + "/tree"); },
      [&] { return walk_machine(options); });
}
