#include "platform/reading_state.h"

#include <string_view>
#include <vector>

namespace quillvane {

// A folder's name and its way up are there before it is read and never change.
std::string ReadingState::folder_in_work(const std::string& root) const {
  const ListedFolder* folder = in_work_.load(std::memory_order_acquire);
  std::vector<std::string_view> names;
  for (; folder != nullptr && folder->parent() != nullptr; folder = folder->parent()) {
    names.push_back(folder->name());
  }
  std::string path = root;
  for (auto name = names.rbegin(); name != names.rend(); ++name) path.append("\\").append(*name);
  return path;
}

}  // namespace quillvane
