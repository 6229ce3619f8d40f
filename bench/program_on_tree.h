// The program on a machine folder whose temporary folder is a measured tree, so that all files of
// the tree are hits of one category. The tree is its drive D: besides.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "core/form7.h"
#include "core/program.h"
#include "platform/folder/folder_machine.h"
#include "platform/folder/posix/folder_file_system.h"
#include "platform/virtual/queued_dialogs.h"
#include "tests/support/memory_registry.h"

namespace quillvane::bench {

// Makes a machine beside `folder`/tree; `folder` is its drive C:. False when it cannot be written.
[[nodiscard]] bool make_machine_on_tree(const std::string& folder);

// Whether what the program writes into the registry gets to its file, or stays in memory.
enum class Suite { kTold, kNotTold };

class ProgramOnTree {
 public:
  // `threads` read folders, 0 for as many as the program itself would take.
  ProgramOnTree(const std::string& folder, std::uint32_t threads, Suite suite = Suite::kTold);

  // The started main window; null when the machine could not be opened.
  [[nodiscard]] Form7* window() { return program_ ? &program_->main_window() : nullptr; }

 private:
  std::unique_ptr<FolderMachine> machine_;
  std::unique_ptr<QueuedDialogs> dialogs_;
  std::unique_ptr<FolderFileSystem> files_;
  MemoryRegistry registry_;
  std::optional<Program> program_;
};

}  // namespace quillvane::bench
