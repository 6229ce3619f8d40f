// Without another machine named, the console on Linux works on a demo machine.

#include <stdlib.h>

#include <filesystem>
#include <ostream>
#include <system_error>
#include <utility>

#include "app/folder_host.h"
#include "app/make_machine_host.h"
#include "platform/folder/demo_folder.h"

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

// Makes the demo machine beside its place and then puts it there, so that it is there whole or not
// at all, whoever interrupts.
std::optional<HostProblem> make_demo_machine(FolderHost& host, const std::string& dir) {
  std::error_code failed;
  std::filesystem::create_directories(std::filesystem::path(dir).parent_path(), failed);
  std::string beside = dir + ".XXXXXX";
  if (failed || mkdtemp(beside.data()) == nullptr) {
    return HostProblem{dir + ": the demo machine cannot be made here"};
  }
  auto problem = host.create(beside, true);
  if (!problem) std::filesystem::rename(beside, dir, failed);
  if (!problem && !failed) return std::nullopt;

  std::error_code ignored;
  std::filesystem::remove_all(beside, ignored);
  // Another run may have made it in the meantime.
  if (!problem && !is_empty_or_missing(dir)) return std::nullopt;
  if (!problem) problem = HostProblem{dir + ": " + failed.message()};
  return problem;
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
