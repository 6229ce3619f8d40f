// The watch over the reading of a tree: the window answers meanwhile, and the user may end it.
#pragma once

#include <string>

#include "core/program.h"
#include "platform/folder_tree.h"
#include "platform/tree_reading.h"

namespace quillvane {

// For one reading, or for several that follow each other.
class ReadingWatch final : public TreeReading {
 public:
  explicit ReadingWatch(Program& program) : program_(program) {}

  // Lets the view have its say. Nothing of the program's state changes here, so that a run without
  // a view is the same whether a reading takes long or not.
  [[nodiscard]] bool go_on(const TreeProgress& progress) override;

  // To be called behind the reading of `path`; null: it could not be read. Serves the message loop
  // once when the reading was ended: what ended it, a click on Cancel, is done before the files are
  // judged, and also when there are none. Warns when links were passed over.
  void settle(const std::string& path, const FolderTree* tree);

 private:
  Program& program_;
  bool was_ended_ = false;
};

}  // namespace quillvane
