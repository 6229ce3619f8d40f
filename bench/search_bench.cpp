// Measures the run of the drive search on a machine folder, from the click on its button to the
// filled list, against a bare walk of the same tree, warm:
//
//   quillvane_bench_search --files 1000000 --dir DIR --threads 1 --pairs 5
//   quillvane_bench_search --files 1000000 --dir DIR --names 10000
//   quillvane_bench_search --files 1000000 --dir DIR --suite 1
//
// The drive is searched by 40 patterns, the last of which every file matches. With --names the run
// with a list of so many names to leave out, none of which the tree has, is measured against the
// run with one; with --suite the run that tells the suite how far it has come, in the registry,
// against one whose telling is swallowed.
#include <cstdio>
#include <memory>
#include <string>

#include "bench/bare_walk.h"
#include "bench/pairs.h"
#include "bench/program_on_tree.h"

namespace quillvane::bench {

namespace {

constexpr int kTreeRow = 2;  // of View2: the drive that is the tree

// Of the kinds that a table of file types has, most of them matching little, and all files last.
std::string forty_patterns() {
  return "*.tmp|*.temp|*.$$$|*.~mp|*.~tm|*.crdownload|*.part|*.partial|*.opdownload|.~lock.*#|*."
         "rbf|"
         "thumbs.db|ehthumbs*.db|.ds_store|mscreate.dir|*.stackdump|*.ncb|*.ilk|*.ipch|"
         "file????.chk|*.bak|*~|*.??~|*.~*|*.old|*.log.old|*.gid|*.ftg|*.chw|msi?????.log|"
         "dd_*.log|vcredist*.log|debug.log|hs_err_pid*.log|*.etl|*.wer|memory.dmp|mini*.dmp|*.mdmp|"
         "*.*";
}

// A third of them names, a third endings, a third beginnings.
std::string name_number(std::uint32_t number) {
  const std::string text = "unwanted " + std::to_string(number);
  switch (number % 3) {
    case 0:
      return text + ".txt";
    case 1:
      return "*" + text;
    default:
      return text + "*";
  }
}

// What the search made is kept alive: to give it back is not measured.
std::size_t search(const Options& options, std::uint32_t names, Suite suite) {
  static std::unique_ptr<ProgramOnTree> kept;
  kept = std::make_unique<ProgramOnTree>(options.folder, options.threads, suite);
  Form7* form = kept->window();
  if (form == nullptr) return 0;
  for (std::uint32_t i = 0; i < names; ++i) form->List6.add(name_number(i));
  form->types_instead = forty_patterns();
  form->View2.tick_row(kTreeRow, true);
  form->orvbutton5.raise_click();
  return static_cast<std::size_t>(form->view1.count());
}

}  // namespace

}  // namespace quillvane::bench

int main(int count, char** words) {
  using namespace quillvane::bench;
  Options options;
  if (!read_options(count, words, options)) {
    std::fprintf(stderr,
                 "usage: %s --dir DIR [--files N] [--threads N] [--pairs N] [--names N] "
                 "[--suite 1]\n",
                 words[0]);
    return 1;
  }
  if (!have_tree(options) || !make_machine_on_tree(options.folder)) return 1;
  const auto one_name = [&](Suite suite) { return search(options, 1, suite); };
  if (options.names > 0) {
    return run_pairs(
        options, "search with names to leave out", [&] { return one_name(Suite::kTold); },
        [&] { return search(options, options.names, Suite::kTold); });
  }
  if (options.suite > 0) {
    return run_pairs(
        options, "search that tells the suite", [&] { return one_name(Suite::kNotTold); },
        [&] { return one_name(Suite::kTold); });
  }
  return run_pairs(
      options, "search", [&] { return walk_bare(options.folder + "/tree"); },
      [&] { return one_name(Suite::kTold); });
}
