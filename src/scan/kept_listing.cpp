#include "scan/kept_listing.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "core/form7.h"
#include "platform/unicode_case.h"
#include "scan/reading_watch.h"
#include "scan/tree_part.h"
#include "scan/walk.h"
#include "support/text.h"

namespace quillvane {

namespace {

// Whether the name stands for itself: Windows drops trailing points and blanks, and "/" parts
// names.
bool is_plain(std::string_view name) {
  return !name.ends_with('.') && !name.ends_with(' ') && name.find('/') == std::string_view::npos;
}

struct Found {
  const ListedFolder* folder = nullptr;
  bool as_written = false;  // in the case of the path, too
};

Found subfolder(const ListedFolder& folder, std::string_view name) {
  Found same;
  for (const ListedFolder* sub = folder.first_subfolder(); sub != nullptr;
       sub = sub->next_sibling()) {
    if (sub->name() == name) return {sub, true};
    if (same.folder == nullptr && same_name(sub->name(), name)) same.folder = sub;
  }
  return same;
}

}  // namespace

KeptListing::KeptListing(Form7& form, std::string root, std::vector<std::string> patterns)
    : form_(form), root_(std::move(root)), patterns_(std::move(patterns)) {}

std::optional<ListedPart> KeptListing::find(const std::string& path, const std::string& pattern) {
  const auto wanted = std::find(patterns_.begin(), patterns_.end(), pattern);
  if (wanted == patterns_.end() || !path.starts_with(root_)) return std::nullopt;
  const std::string below = path.substr(root_.size());
  if (!below.empty() && below[0] != '\\') return std::nullopt;
  if (!std::exchange(read_, true)) read();
  // Where a link led back, the walk of a part could go further than the walk of the whole did.
  if (tree_ == nullptr || tree_->left_out_loops() || tree_->left_out_links()) return std::nullopt;

  const ListedFolder* folder = &tree_->root();
  std::string reached = root_;
  for (const std::string& name : Split(below, "\\")) {
    if (name.empty()) continue;
    folder = is_plain(name) ? enter(*folder, name, reached) : nullptr;
    if (folder == nullptr) return std::nullopt;
  }
  return ListedPart{tree_, folder, static_cast<unsigned>(wanted - patterns_.begin())};
}

void KeptListing::read() {
  ReadingWatch watch(form_.program);
  tree_ = form_.platform().files.read_tree_watched(root_, patterns_, &watch);
  watch.settle(root_, tree_.get());
}

// A disk that tells names apart by case could have a file, which is not listed here, under a name
// that is nearer to the one asked for.
const ListedFolder* KeptListing::enter(const ListedFolder& folder, const std::string& name,
                                       std::string& reached) const {
  reached.append("\\").append(name);
  const auto [next, as_written] = subfolder(folder, name);
  if (next == nullptr || as_written) return next;
  const auto attributes = form_.platform().files.attributes(reached);
  return attributes && (*attributes & kAttributeFolder) != 0 ? next : nullptr;
}

void KeptListing::srch(const std::string& path, const std::string& pattern, int category) {
  if (const auto part = find(path, pattern)) {
    // The rows read their texts from a copy of their own, so that they do not keep the listing.
    auto own = copy_of(*part);
    const ListedFolder& folder = own->root();
    Walk(form_, category, Walk::Keep::kAll).run({std::move(own), &folder, 0}, path, pattern);
  } else {
    form_.srch(path, pattern, category);
  }
}

}  // namespace quillvane
