#include "shortcuts/target_search.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/unicode_case.h"
#include "scan/reading_watch.h"
#include "shortcuts/rebuilt_link.h"
#include "support/program_name.h"
#include "support/text.h"
#include "support/val.h"

namespace quillvane {

namespace {

constexpr const char* kNothingFoundText = "Can't find any target for listed files";
// The folders that are done leave the list so many at a time: each time all others move up.
constexpr int kFoldersAtOnce = 256;

std::string with_backslash(const std::string& folder) {
  return folder.ends_with('\\') ? folder : folder + '\\';
}

std::string file_name(std::string_view path) {
  return std::string(path.substr(path.rfind('\\') + 1));
}

// The drive of the first link that lies on a fixed one; the targets may have been elsewhere. Empty
// when no link does.
std::string root_to_search(const ResultPage& results) {
  for (int row = 1; row <= results.view1.count(); ++row) {
    const std::string root = results.link_path(row).substr(0, 1) + ":\\";
    if (results.platform().drives.type(root) == DriveType::kFixed) return root;
  }
  return {};
}

}  // namespace

bool TargetSearch::search_targets(const ResultPage& results, ProgressPanel& progress) {
  for (ListBox* list : {&List4, &List5, &List6}) list->clear();
  const std::string root = root_to_search(results);
  note_names(results);
  for (ListBox* list : {&LSTFILES, &lstdirs, &List7}) list->clear();
  if (!root.empty()) search_drive(root, progress);
  for (const std::string& file : List7.items()) List4.add(file);
  if (Trim(List4.item(0)).empty()) {
    if (!session.ended()) {
      platform().dialogs.message_box(kNothingFoundText, std::string(kProgramName), 0);
    }
    return false;
  }
  rebuild_links();
  return true;
}

// A target without a backslash has a place in List6 and none in List5: from there on each name
// stands beside the link before its own. Text4 is never emptied: the names of the run before, and
// the "1" of a cancel, stay at its head. Both meant so.
void TargetSearch::note_names(const ResultPage& results) {
  for (int row = 1; row <= results.view1.count(); ++row) {
    List6.add(results.link_path(row));
    const std::string target(Trim(results.target(row)));
    if (target.find('\\') == std::string::npos) continue;
    const std::string name = file_name(target);
    Text4.set_text(Text4.text() + name + ";");
    List5.add(name);
  }
  const std::string& names = Text4.text();
  if (!names.empty()) Text4.set_text(names.substr(0, names.size() - 1));
  File1.set_pattern(Trim(Text4.text()));
}

void TargetSearch::search_drive(const std::string& root, ProgressPanel& progress) {
  ReadingWatch watch(session);
  is_reading_ = true;
  const auto tree = platform().files.read_tree_watched(root, {"*"}, &watch);
  is_reading_ = false;
  watch.settle(root, tree.get());
  if (tree == nullptr) return;
  lstdirs.add(root);
  to_search_ = {&tree->root()};
  for (int done = 0; !to_search_.empty(); to_search_.pop_front()) {
    session.do_events();
    if (session.ended()) break;
    const std::string path = with_backslash(lstdirs.item(done));
    progress.Label100.set_caption(path);
    progress.Label5.set_caption(path);
    list_wanted_files(path, *to_search_.front());
    findfilesapi(path, *to_search_.front());
    ++done;
    if (done == kFoldersAtOnce || done == lstdirs.count()) {
      lstdirs.remove_first(done);
      done = 0;
    }
  }
  to_search_.clear();
}

void TargetSearch::list_wanted_files(const std::string& path, const ListedFolder& folder) {
  File1.show_folder(platform().files, path, folder);
  for (const std::string& name : File1.items()) {
    if (!Trim(name).empty()) List7.add(path + name);
  }
}

// Notes the files, and the subfolders but for those whose name begins with a dot.
void TargetSearch::findfilesapi(const std::string& path, const ListedFolder& folder) {
  // The listing of a folder begins with "." and "..", but for that of a drive's root.
  constexpr std::size_t kRootLength = 3;
  const int dots = path.size() > kRootLength ? 2 : 0;
  for (int i = 0; i < dots; ++i) {
    if (stops_for_entry()) return;
  }
  for (std::uint32_t i = 0; i < folder.file_count(); ++i) {
    LSTFILES.add(path + std::string(folder.name_of(i)));
    if (stops_for_entry()) return;
  }
  for (const ListedFolder* sub = folder.first_subfolder(); sub != nullptr;
       sub = sub->next_sibling()) {
    if (!sub->name().starts_with('.')) {
      lstdirs.add(path + std::string(sub->name()) + "\\");
      to_search_.push_back(sub);
    }
    if (stops_for_entry()) return;
  }
}

// A cancel is seen here, and so is a wanted name that begins with the number 1. Meant so.
bool TargetSearch::stops_for_entry() {
  session.do_events();
  return session.ended() || Val(Text4.text()) == 1;
}

// A name that stands on the drive several times rebuilds its link each time: the last one stays.
void TargetSearch::rebuild_links() {
  std::vector<std::string> patterns;
  for (const std::string& name : List5.items()) patterns.push_back(lower_case(Trim(name)));
  for (const std::string& file : List4.items()) {
    if (session.cleaning_ended()) return;
    const std::string name = file_name(lower_case(Trim(file)));
    for (std::size_t i = 0; i < patterns.size(); ++i) {
      // A pattern that is ill-formed fits no name: no link is rebuilt for it.
      if (!Like(Trim(name), patterns[i])) continue;
      rebuild_link(platform(), List6.item(static_cast<int>(i)),
                   {.target = file, .icon_file = file});
    }
  }
}

void TargetSearch::cancel() {
  Text4.set_text("");
  Text4.set_text("1");
}

}  // namespace quillvane
