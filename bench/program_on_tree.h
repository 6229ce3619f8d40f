// The program on a machine folder whose temporary folder is a measured tree, so that all files of
// the tree are hits of one category.
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

namespace quillvane::bench {

// Makes a machine beside `folder`/tree; `folder` is its drive C:. False when it cannot be written.
[[nodiscard]] bool make_machine_on_tree(const std::string& folder);

class ProgramOnTree {
 public:
  // `threads` read folders, 0 for as many as the program itself would take.
  ProgramOnTree(const std::string& folder, std::uint32_t threads);

  // The started main window; null when the machine could not be opened.
  [[nodiscard]] Form7* window() { return program_ ? &program_->main_window() : nullptr; }

 private:
  std::unique_ptr<FolderMachine> machine_;
  std::unique_ptr<QueuedDialogs> dialogs_;
  std::unique_ptr<FolderFileSystem> files_;
  std::optional<Program> program_;
};

}  // namespace quillvane::bench
