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
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <variant>

#include "bench/bare_walk.h"
#include "bench/pairs.h"
#include "core/form7.h"
#include "core/program.h"
#include "platform/folder/folder_machine.h"
#include "platform/folder/posix/folder_file_system.h"
#include "platform/virtual/queued_dialogs.h"

namespace quillvane::bench {

namespace {

constexpr const char* kMachineJson = R"({
  "drives": [{"letter": "C", "folder": ".."}],
  "environment": {"TEMP": "C:\\tree"}
})";

// A machine beside the tree; their folder is its drive C:.
bool make_machine(const std::string& folder) {
  std::error_code failed;
  std::filesystem::create_directories(folder, failed);
  std::FILE* file = std::fopen((folder + "/machine.json").c_str(), "w");
  if (file == nullptr) return false;
  std::fputs(kMachineJson, file);
  return std::fclose(file) == 0;
}

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

// One machine and the program on it. What it made is kept alive: to give it back is not measured.
class Scan {
 public:
  Scan(const std::string& folder, std::uint32_t threads) {
    auto opened = FolderMachine::open(folder);
    if (!std::holds_alternative<std::unique_ptr<FolderMachine>>(opened)) return;
    machine_ = std::get<std::unique_ptr<FolderMachine>>(std::move(opened));
    dialogs_ = std::make_unique<QueuedDialogs>(machine_->effects());
    files_ = std::make_unique<FolderFileSystem>(machine_->state(), threads);
    program_.emplace(machine_->platform(*dialogs_).with_files(*files_));
    program_->start("");
  }

  std::size_t run(const Lists& lists) {
    if (!program_) return 0;
    Form7& form = program_->main_window();
    form.ignorelist.set_text(lists.ignored);
    form.Text15.set_text(lists.pending);
    form.startclean();
    form.loadfirstscan();
    return static_cast<std::size_t>(form.view5.count());
  }

 private:
  std::unique_ptr<FolderMachine> machine_;
  std::unique_ptr<QueuedDialogs> dialogs_;
  std::unique_ptr<FolderFileSystem> files_;
  std::optional<Program> program_;
};

std::size_t scan(const Options& options, const Lists& lists) {
  static std::unique_ptr<Scan> kept;
  kept = std::make_unique<Scan>(options.folder + "/machine", options.threads);
  return kept->run(lists);
}

std::size_t walk_bare(const Options& options) {
  static std::unique_ptr<BareWalk> walk;
  walk = std::make_unique<BareWalk>(options.folder + "/tree");
  return walk->file_count();
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
  if (!have_tree(options) || !make_machine(options.folder + "/machine")) return 1;
  const Lists empty;
  if (options.list_megabytes == 0) {
    return run_pairs(
        options, "scan", [&] { return walk_bare(options); }, [&] { return scan(options, empty); });
  }
  const Lists lists = make_lists(options.list_megabytes);
  return run_pairs(
      options, "scan with lists", [&] { return scan(options, empty); },
      [&] { return scan(options, lists); });
}
