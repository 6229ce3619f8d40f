// Measures the whole category of a Chromium browser, from the reading of its profiles to the node's
// result, against one bare walk of its folder of all profiles, warm:
//
//   quillvane_bench_browser --files 100000 --dir DIR --threads 1 --pairs 9
//
// Two browsers: Chrome with its own list of nine rows and Yandex, which has the most rows over a
// whole profile. Each has two profiles, so all rows run twice.
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <memory>
#include <optional>
#include <string>
#include <variant>

#include "bench/bare_walk.h"
#include "bench/make_user_data.h"
#include "bench/pairs.h"
#include "categories/chromium_browsers.h"
#include "core/form7.h"
#include "core/program.h"
#include "platform/folder/folder_machine.h"
#include "platform/folder/posix/folder_file_system.h"
#include "platform/folder/registry_store.h"
#include "platform/virtual/queued_dialogs.h"

namespace quillvane::bench {

namespace {

struct Subject {
  const char* name;
  const char* folder;  // below the user's folder, in the host's writing
  const char* key;
  void (*routine)(JunkPage&);
  std::uint64_t Finds::*finds;
};

constexpr Subject kSubjects[] = {
    {"chrome", "/AppData/Local/Google/Chrome/User Data", "Software\\Google\\Chrome\\PreferenceMACs",
     googlecache, &Finds::by_chrome},
    {"yandex", "/AppData/Local/Yandex/YandexBrowser/User Data",
     "Software\\Yandex\\YandexBrowser\\PreferenceMACs", ydxcache, &Finds::by_yandex},
};

// DIR/NAME is a machine folder whose drive holds the user's folder.
struct Place {
  std::string machine;
  std::string user_data;
};

Place place_of(const Options& options, const Subject& subject) {
  const std::string machine = options.folder + "/" + subject.name;
  return {machine, machine + "/drive_c/Users/User" + subject.folder};
}

std::unique_ptr<FolderMachine> open_machine(const std::string& folder) {
  auto opened = FolderMachine::open(folder);
  if (const auto* problem = std::get_if<std::string>(&opened)) {
    std::fprintf(stderr, "%s\n", problem->c_str());
    return nullptr;
  }
  return std::get<std::unique_ptr<FolderMachine>>(std::move(opened));
}

bool have_browser(const Place& place, const Subject& subject, std::uint32_t files) {
  if (!make_user_data(place.user_data, files)) return false;
  const auto machine = open_machine(place.machine);
  if (machine == nullptr) return false;
  for (const char* profile : {"\\Default", "\\Profile 1"}) {
    if (!machine->registry().create_key(Hive::kCurrentUser, std::string(subject.key) + profile)) {
      return false;
    }
  }
  return true;
}

// The program on a machine. What it made is kept alive: to give it back is not measured.
class Running {
 public:
  Running(const std::string& folder, std::uint32_t threads) : machine_(open_machine(folder)) {
    if (machine_ == nullptr) return;
    dialogs_ = std::make_unique<QueuedDialogs>(machine_->effects());
    files_ = std::make_unique<FolderFileSystem>(machine_->state(), threads);
    program_.emplace(machine_->platform(*dialogs_).with({.files = files_.get()}));
    program_->start("");
  }

  std::uint64_t rows_of(const Subject& subject) {
    if (!program_) return 0;
    Form7& form = program_->main_window();
    subject.routine(form);
    return static_cast<std::uint64_t>(form.view1.count());
  }

 private:
  std::unique_ptr<FolderMachine> machine_;
  std::unique_ptr<QueuedDialogs> dialogs_;
  std::unique_ptr<FolderFileSystem> files_;
  std::optional<Program> program_;
};

// Tells the number of files when the rows are as many as the plan says, else the rows.
std::size_t scan(const Options& options, const Subject& subject) {
  static std::unique_ptr<Running> kept;
  kept = std::make_unique<Running>(place_of(options, subject).machine, options.threads);
  const std::uint64_t rows = kept->rows_of(subject);
  const std::uint64_t expected = finds_in_user_data(options.files).*subject.finds;
  if (rows == expected) return options.files;
  std::fprintf(stderr, "%s: %llu rows instead of %llu\n", subject.name,
               static_cast<unsigned long long>(rows), static_cast<unsigned long long>(expected));
  return 0;
}

int measure_browser(const Options& options, const Subject& subject) {
  const Place place = place_of(options, subject);
  if (!have_browser(place, subject, options.files)) return 1;
  return run_pairs(
      options, subject.name, [&] { return walk_bare(place.user_data); },
      [&] { return scan(options, subject); });
}

}  // namespace

}  // namespace quillvane::bench

int main(int count, char** words) {
  using namespace quillvane::bench;
  Options options;
  options.files = 100'000;
  if (!read_options(count, words, options)) {
    std::fprintf(stderr, "usage: %s --dir DIR [--files N] [--threads N] [--pairs N]\n", words[0]);
    return 1;
  }
  for (const Subject& subject : kSubjects) {
    if (const int status = measure_browser(options, subject); status != 0) return status;
  }
  return 0;
}
