// Without another machine named, the console on Linux works on a demo machine.

#include <fcntl.h>
#include <stdlib.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <ostream>
#include <system_error>
#include <utility>

#include "app/folder_host.h"
#include "app/make_machine_host.h"
#include "machine/demo_folder.h"
#include "platform/folder/posix/descriptor.h"

namespace quillvane {

namespace {

std::optional<std::string> host_variable(const char* name) {
  const char* value = getenv(name);
  if (value == nullptr) return std::nullopt;
  return std::string(value);
}

bool is_empty_or_missing(const std::string& dir) {
  std::error_code failed;
  return !std::filesystem::exists(dir, failed) || std::filesystem::is_empty(dir, failed);
}

// What is made in a folder beside its place. A folder that holds anything else is somebody's own.
constexpr const char* kMaking = ".quillvane-machine";

// A folder beside another, for this program alone as long as it lives. What a program that was
// killed left in one is taken away.
class FolderBeside {
 public:
  explicit FolderBeside(const std::string& dir) {
    constexpr int kMostAtOnce = 16;
    for (int number = 1; number <= kMostAtOnce && !lock_.is_open(); ++number) {
      path_ = dir + ".new-" + std::to_string(number);
      if (mkdir(path_.c_str(), 0700) != 0 && errno != EEXIST) return;
      lock_ = Descriptor(open(path_.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
      if (!is_taken() || !holds_nothing_else()) lock_ = Descriptor();
    }
    if (lock_.is_open()) remove_made();
  }
  ~FolderBeside() {
    if (!lock_.is_open()) return;
    remove_made();
    rmdir(path_.c_str());
  }
  FolderBeside(const FolderBeside&) = delete;
  FolderBeside& operator=(const FolderBeside&) = delete;

  [[nodiscard]] bool is_made() const { return lock_.is_open(); }
  // Where to make what shall be put in place; not there yet.
  [[nodiscard]] std::string path() const { return path_ + "/" + kMaking; }

  // Puts it at `dir`, which may be an empty folder.
  [[nodiscard]] std::error_code put_in_place(const std::string& dir) const {
    std::error_code failed;
    std::filesystem::rename(path(), dir, failed);
    return failed;
  }

 private:
  // Locked, ours, and not put in place meanwhile by the program that made it.
  [[nodiscard]] bool is_taken() const {
    struct stat mine = {};
    struct stat named = {};
    return lock_.is_open() && flock(lock_.number(), LOCK_EX | LOCK_NB) == 0 &&
           fstat(lock_.number(), &mine) == 0 && lstat(path_.c_str(), &named) == 0 &&
           mine.st_dev == named.st_dev && mine.st_ino == named.st_ino && mine.st_uid == geteuid();
  }
  [[nodiscard]] bool holds_nothing_else() const {
    std::error_code failed;
    for (const auto& entry : std::filesystem::directory_iterator(path_, failed)) {
      if (entry.path().filename() != kMaking) return false;
    }
    return !failed;
  }
  void remove_made() const {
    std::error_code ignored;
    std::filesystem::remove_all(path(), ignored);
  }

  std::string path_;
  Descriptor lock_;
};

// Makes the demo machine beside its place and then puts it there, so that it is there whole or not
// at all, whoever interrupts.
std::optional<HostProblem> make_demo_machine(FolderHost& host, const std::string& dir) {
  std::error_code failed;
  std::filesystem::create_directories(std::filesystem::path(dir).parent_path(), failed);
  FolderBeside beside(dir);
  if (failed || !beside.is_made()) {
    return HostProblem{dir + ": the demo machine cannot be made here"};
  }
  if (auto problem = host.create(beside.path(), true)) return problem;
  failed = beside.put_in_place(dir);
  // Another run may have made it in the meantime.
  if (!failed || !is_empty_or_missing(dir)) return std::nullopt;
  return HostProblem{dir + ": " + failed.message()};
}

class DemoHost final : public FolderHost {
 public:
  [[nodiscard]] std::variant<std::unique_ptr<ConsoleMachine>, HostProblem> open(
      const std::optional<std::string>& dir, std::ostream& notices) override {
    auto folder = dir ? std::variant<std::string, HostProblem>(*dir) : usual_folder(notices);
    if (auto* problem = std::get_if<HostProblem>(&folder)) return std::move(*problem);
    return open_folder(std::get<std::string>(folder));
  }

 private:
  // The folder to work on when the command line names none.
  [[nodiscard]] std::variant<std::string, HostProblem> usual_folder(std::ostream& notices);
};

std::variant<std::string, HostProblem> DemoHost::usual_folder(std::ostream& notices) {
  auto named = host_variable("QUILLVANE_MACHINE");
  if (named && !named->empty()) return *std::move(named);
  auto demo = demo_folder(host_variable);
  if (!demo) return HostProblem{"--machine: needed here, as there is no home for a demo machine"};
  if (is_empty_or_missing(*demo)) {
    if (auto problem = make_demo_machine(*this, *demo)) return *std::move(problem);
    notices << "quillvane: demo machine: made in " << *demo << '\n';
  }
  return *std::move(demo);
}

}  // namespace

std::unique_ptr<MachineHost> make_machine_host() { return std::make_unique<DemoHost>(); }

}  // namespace quillvane
