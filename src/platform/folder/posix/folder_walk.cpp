#include "platform/folder/posix/folder_walk.h"

#include <fcntl.h>

#include <algorithm>
#include <cerrno>
#include <string>
#include <system_error>
#include <utility>

#include "platform/folder/posix/folder_reader.h"
#include "platform/unicode_case.h"

namespace quillvane {

namespace {

// So many are read in about the time that a thread needs to start.
constexpr std::size_t kFoldersWorthHelp = 32;

constexpr int kListFlags = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;

}  // namespace

FolderWalk::FolderWalk(const TreeScope& scope, unsigned threads, FolderTree& tree,
                       ReadingState& state)
    : scope_(scope), tree_(tree), state_(state), open_(threads) {}

void FolderWalk::read(const HostPlace& start, Descriptor descriptor, std::size_t path_units) {
  ListedFolder* root = ListedFolder::make(tree_.add_arena(), {}, nullptr);
  tree_.set_root(root);
  work(0, FolderInWork{root, std::move(descriptor), add_route({start.path, *root}), path_units});
  for (std::thread& helper : helpers_) helper.join();
}

void FolderWalk::work(std::size_t thread, std::optional<FolderInWork> first) {
  FolderReader reader(scope_, tree_.add_arena(), state_);
  std::size_t folders_read = 0;
  for (auto folder = first ? std::move(first) : next_folder(thread); folder;
       folder = next_folder(thread)) {
    const std::size_t subfolders = reader.read(*folder);
    links_.note_read(folder->is_read_again, reader.names_read());
    finish(thread, std::move(*folder), subfolders);
    if (thread == 0 && ++folders_read == kFoldersWorthHelp) start_helpers();
  }
}

void FolderWalk::start_helpers() {
  try {
    for (std::size_t thread = 1; thread < open_.size(); ++thread) {
      helpers_.emplace_back(&FolderWalk::work, this, thread, std::nullopt);
    }
  } catch (const std::system_error&) {
    // The host gives no more threads; those there are read everything.
  }
}

// The count goes up before the subfolders can be taken, so that it is 0 only at the end.
void FolderWalk::finish(std::size_t thread, FolderInWork folder, std::size_t subfolders) {
  const bool is_end = unread_.fetch_add(subfolders - 1) + subfolders == 1;
  if (subfolders > 0) open_[thread].add(std::move(folder));
  if (is_end) {
    ++news_;
    news_.notify_all();
  } else if (subfolders > 0 && idle_ > 0) {
    ++news_;
    news_.notify_one();
  }
}

std::optional<FolderInWork> FolderWalk::next_folder(std::size_t thread) {
  const auto entering = [this](const FolderInWork& parent, ListedFolder& folder) {
    return enter(parent, folder);
  };
  if (auto folder = open_[thread].take_newest(entering)) return folder;
  ++idle_;
  std::optional<FolderInWork> folder;
  for (;;) {
    const std::uint32_t known = news_;
    folder = take_from_others(thread);
    if (folder || unread_ == 0) break;
    news_.wait(known);
  }
  --idle_;
  return folder;
}

std::optional<FolderInWork> FolderWalk::take_from_others(std::size_t thread) {
  const auto entering = [this](const FolderInWork& parent, ListedFolder& folder) {
    return enter(parent, folder);
  };
  for (std::size_t i = 1; i < open_.size(); ++i) {
    OpenFolders& others = open_[(thread + i) % open_.size()];
    if (auto folder = others.take_oldest(entering)) return folder;
  }
  return std::nullopt;
}

FolderInWork FolderWalk::enter(const FolderInWork& parent, ListedFolder& folder) {
  const std::string name(folder.name());
  FolderInWork entered{&folder, {}, parent.route, parent.path_units + utf16_length(name) + 1};
  if (state_.ended() || is_given_up() || !scope_.can_list(entered.path_units)) return entered;
  entered.descriptor = Descriptor(openat(parent.descriptor.number(), name.c_str(), kListFlags));
  const bool is_link = !entered.descriptor.is_open() && (errno == ELOOP || errno == ENOTDIR);
  if (is_link) enter_link(parent, entered);
  if (!may_be_read(entered, is_link)) entered.descriptor = {};
  return entered;
}

void FolderWalk::enter_link(const FolderInWork& parent, FolderInWork& entered) {
  const auto target = scope_.drive.follow(parent.route->path_of(*parent.folder),
                                          std::string(entered.folder->name()));
  if (!target || !is_folder(target->status)) return;
  auto around = parent.route->way_to(parent.descriptor.number(), *parent.folder);
  if (std::find(around.begin(), around.end(), HostIdentity::of(target->status)) != around.end()) {
    tree_.set_left_out_loops();
    return;
  }
  entered.route = add_route({target->path, *entered.folder, std::move(around)});
  entered.descriptor = open_for_listing(*target);
}

// Behind a link a folder can lie in itself without a further link, or be one that was read before:
// the host is asked which it is.
bool FolderWalk::may_be_read(FolderInWork& entered, bool is_link) {
  if (!entered.descriptor.is_open()) return false;
  const bool is_behind_link = entered.route->is_behind_link();
  if (scope_.denied.empty() && !is_behind_link) return true;
  HostStatus status;
  if (!read_status(entered.descriptor.number(), status)) return false;
  const HostIdentity identity = HostIdentity::of(status);
  if (scope_.is_denied(identity)) return false;
  if (!is_behind_link) return true;
  if (entered.route->was_entered(identity)) {
    tree_.set_left_out_loops();
    return false;
  }
  const LinkBudget::Entry entry = links_.enter(identity.key(), is_link);
  entered.is_read_again = entry == LinkBudget::Entry::kAgain;
  if (entry != LinkBudget::Entry::kPassedOver) return true;
  tree_.set_left_out_links();
  return false;
}

const TreeRoute* FolderWalk::add_route(TreeRoute route) {
  const std::lock_guard lock(adding_route_);
  return &routes_.emplace_back(std::move(route));
}

}  // namespace quillvane
