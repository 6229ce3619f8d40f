// Measures a whole scan of a machine folder, from the click on the start button to the summary,
// against a bare walk of the same tree, warm:
//
//   quillvane_bench_scan --files 200000 --dir DIR --threads 2 --pairs 9
//   quillvane_bench_scan --files 200000 --dir DIR --lists 20
//
// The tree is the user's temporary folder, so all its files are hits of one category. With --lists
// the same scan with an ignore list and a pending queue of so many megabytes each is measured
// against the scan with empty ones.
#include <cstdio>
#include <memory>
#include <string>

#include "bench/bare_walk.h"
#include "bench/pairs.h"
#include "bench/program_on_tree.h"

namespace quillvane::bench {

namespace {

// Paths of about 70 letters, none of them in the tree.
std::string path_number(std::size_t number) {
  return "c:\\users\\somebody\\appdata\\local\\program " + std::to_string(number % 997) +
         "\\cache folder\\" + std::to_string(number) + " file.tmp";
}

struct Lists {
  std::string ignored;
  std::string pending;
};

Lists make_lists(std::uint32_t megabytes) {
  const std::size_t length = std::size_t{megabytes} * 1'000'000;
  Lists lists;
  for (std::size_t i = 0; lists.ignored.size() < length; ++i) {
    lists.ignored += path_number(i) + "|";
    lists.pending += "|\\??\\" + path_number(i + 1) + "|";
  }
  return lists;
}

// What the scan made is kept alive: to give it back is not measured.
std::size_t scan(const Options& options, const Lists& lists) {
  static std::unique_ptr<ProgramOnTree> kept;
  kept = std::make_unique<ProgramOnTree>(options.folder, options.threads);
  Form7* form = kept->window();
  if (form == nullptr) return 0;
  form->ignorelist.set_text(lists.ignored);
  form->Text15.set_text(lists.pending);
  form->startclean();
  form->loadfirstscan();
  return static_cast<std::size_t>(form->view5.count());
}

}  // namespace

}  // namespace quillvane::bench

int main(int count, char** words) {
  using namespace quillvane::bench;
  Options options;
  if (!read_options(count, words, options)) {
    std::fprintf(stderr, "usage: %s --dir DIR [--files N] [--threads N] [--pairs N] [--lists MB]\n",
                 words[0]);
    return 1;
  }
  if (!have_tree(options) || !make_machine_on_tree(options.folder)) return 1;
  const Lists empty;
  if (options.list_megabytes == 0) {
    return run_pairs(
        options, "scan", [&] { return walk_bare(options.folder + "/tree"); },
        [&] { return scan(options, empty); });
  }
  const Lists lists = make_lists(options.list_megabytes);
  return run_pairs(
      options, "scan with lists", [&] { return scan(options, empty); },
      [&] { return scan(options, lists); });
}
