#include "bench/program_on_tree.h"

#include <cstdio>
#include <filesystem>
#include <utility>
#include <variant>

namespace quillvane::bench {

namespace {

constexpr const char* kMachineJson = R"({
  "drives": [{"letter": "C", "folder": ".."}, {"letter": "D", "folder": "../tree"}],
  "environment": {"TEMP": "C:\\tree"}
})";

}  // namespace

bool make_machine_on_tree(const std::string& folder) {
  std::error_code failed;
  std::filesystem::create_directories(folder + "/machine", failed);
  std::FILE* file = std::fopen((folder + "/machine/machine.json").c_str(), "w");
  if (file == nullptr) return false;
  std::fputs(kMachineJson, file);
  return std::fclose(file) == 0;
}

ProgramOnTree::ProgramOnTree(const std::string& folder, std::uint32_t threads, Suite suite) {
  auto opened = FolderMachine::open(folder + "/machine");
  if (!std::holds_alternative<std::unique_ptr<FolderMachine>>(opened)) return;
  machine_ = std::get<std::unique_ptr<FolderMachine>>(std::move(opened));
  dialogs_ = std::make_unique<QueuedDialogs>(machine_->effects());
  files_ = std::make_unique<FolderFileSystem>(machine_->state(), threads);
  Registry* registry = suite == Suite::kNotTold ? &registry_ : nullptr;
  program_.emplace(
      machine_->platform(*dialogs_).with({.files = files_.get(), .registry = registry}));
  program_->start("");
}

}  // namespace quillvane::bench
