// Measures the cleaning run of a machine folder against a bare loop that removes the same files,
// warm:
//
//   quillvane_bench_cleaning --files 200000 --dir NEWDIR --pairs 3
//
// Each run has a copy of the tree of its own, and all copies are made before the first file is
// removed. DIR has to be new and needs two copies a pair, and two more.
#include <fcntl.h>
#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "bench/make_tree.h"
#include "bench/pairs.h"
#include "bench/program_on_tree.h"

namespace quillvane::bench {

namespace {

namespace fs = std::filesystem;

// The least that a program can do that removes listed files: each folder opened once, each file
// removed by its name in it.
class BareRemoval {
 public:
  explicit BareRemoval(const std::string& folder) {
    add(folder);
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
      if (entry.is_directory()) add(entry.path());
    }
  }

  std::size_t run() {
    std::size_t removed = 0;
    for (const Folder& folder : folders_) {
      const int handle = open(folder.path.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC);
      for (const std::string& name : folder.files) {
        if (unlinkat(handle, name.c_str(), 0) == 0) ++removed;
      }
      close(handle);
    }
    return removed;
  }

 private:
  struct Folder {
    std::string path;
    std::vector<std::string> files;
  };

  void add(const fs::path& path) {
    Folder folder{path.string(), {}};
    for (const auto& entry : fs::directory_iterator(path)) {
      if (entry.is_regular_file()) folder.files.push_back(entry.path().filename().string());
    }
    folders_.push_back(std::move(folder));
  }

  std::vector<Folder> folders_;
};

Task removal_of(const std::string& copy) {
  static std::unique_ptr<BareRemoval> removal;
  return {[copy] { removal = std::make_unique<BareRemoval>(copy + "/tree"); },
          [] { return removal->run(); }};
}

// The scan that fills the list comes first and is not measured.
Task cleaning_of(const std::string& copy, std::uint32_t threads) {
  static std::unique_ptr<ProgramOnTree> program;
  return {[copy, threads] {
            program = std::make_unique<ProgramOnTree>(copy, threads);
            if (program->window() != nullptr) program->window()->startclean();
          },
          [] {
            Form7* form = program->window();
            const int rows = form == nullptr ? 0 : form->view1.count();
            if (rows > 0) form->orvbutton2.click();
            return static_cast<std::size_t>(rows);
          }};
}

std::string copy_folder(const Options& options, const char* user, std::uint32_t pair) {
  return options.folder + "/" + user + "-" + std::to_string(pair);
}

bool make_copies(const Options& options) {
  std::error_code failed;
  if (!fs::create_directories(options.folder, failed)) {
    std::fprintf(stderr, "%s has to be a new folder\n", options.folder.c_str());
    return false;
  }
  for (std::uint32_t pair = 0; pair <= options.pairs; ++pair) {
    for (const char* user : {"bare", "cleaned"}) {
      Options copy = options;
      copy.folder = copy_folder(options, user, pair);
      if (!have_tree(copy) || !make_machine_on_tree(copy.folder)) return false;
    }
  }
  return true;
}

bool all_removed(const Options& options) {
  for (std::uint32_t pair = 0; pair <= options.pairs; ++pair) {
    for (const auto& entry :
         fs::recursive_directory_iterator(copy_folder(options, "cleaned", pair) + "/tree")) {
      if (!entry.is_directory()) {
        std::fprintf(stderr, "%s was left\n", entry.path().c_str());
        return false;
      }
    }
  }
  return true;
}

}  // namespace

}  // namespace quillvane::bench

int main(int count, char** words) {
  using namespace quillvane::bench;
  Options options;
  if (!read_options(count, words, options)) {
    std::fprintf(stderr, "usage: %s --dir NEWDIR [--files N] [--threads N] [--pairs N]\n",
                 words[0]);
    return 1;
  }
  if (!make_copies(options)) return 1;
  const int status = run_numbered_pairs(
      options, "cleaning",
      [&](std::uint32_t pair) { return removal_of(copy_folder(options, "bare", pair)); },
      [&](std::uint32_t pair) {
        return cleaning_of(copy_folder(options, "cleaned", pair), options.threads);
      });
  return status == 0 && all_removed(options) ? 0 : 1;
}
