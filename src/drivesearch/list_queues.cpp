// The queues of the drive search, filled from the lists: List5 takes in, List6 leaves out.
#include "drivesearch/lists_page.h"
#include "platform/unicode_case.h"
#include "support/characters.h"
#include "support/stored_path.h"
#include "support/text.h"

namespace quillvane {

namespace {

constexpr std::uint64_t kShortestList = 3;  // bytes; a file of fewer is no list

// A drive by its letter alone, a path on one, or a path on another computer. What is none of these
// would be looked for below the folder that the program happens to work in.
bool is_whole_path(const std::string& path) {
  if (path.starts_with("\\\\")) return true;
  const bool on_a_drive = path.size() >= 2 && path[1] == ':';
  return on_a_drive && (path.size() == 2 || path[2] == '\\');
}

bool is_folder(const FileSystem& files, const std::string& path) {
  if (!is_whole_path(path)) return false;
  const auto attributes = files.attributes(path.size() == 2 ? path + "\\" : path);
  return attributes && (*attributes & kAttributeFolder) != 0;
}

}  // namespace

void ListsPage::fill_include_queue() {
  if (!Trim(List5.item(0)).empty()) return;
  List5.clear();
  const std::string path = session.data_file(kIncludeFile);
  const auto bytes = platform().files.file_size(path);
  if (bytes && *bytes < kShortestList) return;
  const FolderList list = read_folder_list(platform(), path);
  include_problem = list.problem;
  for (const ListedPlace& place : list.places) {
    if (is_folder(platform().files, place.name)) List5.add(place.name);
  }
}

void ListsPage::fill_exclude_queue() {
  if (!Trim(List6.item(0)).empty()) return;
  List6.clear();
  const FolderList list = open_folder_list(platform(), session.data_file(kExcludeFile));
  exclude_problem = list.problem;
  // In the case in which they stand, though the ignore list is in lower case: a name with a capital
  // never keeps a file. Meant so.
  std::string ignored = junk_.ignorelist.text();
  for (const ListedPlace& place : list.places) {
    if (place.is_folder()) List6.add(lower_case(place.name));
    if (place.is_file()) ignored.append(place.name).push_back('|');
  }
  junk_.ignorelist.set_text(ignored);
  List6.add(lower_case(GetTempDir(platform().environment)));
}

// The queue's items are patterns here.
void ListsPage::drop_excluded_rows() {
  fill_exclude_queue();
  for (const std::string& item : List6.items()) {
    const std::size_t length = character_count(item);
    junk_.view1.remove_if([&](int row) {
      const std::string path = lower_case(Trim(junk_.view1.text(row)));
      return Like(first_characters(path, length), item);
    });
  }
}

}  // namespace quillvane
