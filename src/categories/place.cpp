#include "categories/place.h"

#include "categories/category_frame.h"
#include "platform/unicode_case.h"
#include "scan/junk_page.h"

namespace quillvane {

namespace {

void scan_clr_folders(JunkPage& page, const std::string& folder, const char* pattern, int node) {
  for (const std::string& name : subfolder_names(page, folder)) {
    const std::string path = folder + "\\" + name;
    if (lower_case(path).find("clr_") != std::string::npos) page.srch(path, pattern, node);
  }
}

void scan_place(JunkPage& page, const Place& place, int node) {
  const std::string folder = page.platform().environment.get(place.base) + place.suffix;
  switch (place.take) {
    case Take::kMatching:
      page.srch(folder, place.pattern, node);
      break;
    case Take::kEmptyFiles:
      page.srch2(folder, place.pattern, node);
      break;
    case Take::kClrFolders:
      scan_clr_folders(page, folder, place.pattern, node);
      break;
  }
}

}  // namespace

void walk_places(JunkPage& page, int node, std::span<const Place> places) {
  for (const Place& place : places) scan_place(page, place, node);
}

void scan_places(JunkPage& page, int node, std::span<const Place> places) {
  begin_category(page, node);
  walk_places(page, node, places);
  end_category(page, node);
}

std::vector<std::string> subfolder_names(const JunkPage& page, const std::string& folder) {
  std::vector<std::string> names;
  for (const FolderEntry& entry : page.platform().files.list_folder(folder, "*.*")) {
    if (entry.is_folder()) names.push_back(entry.name);
  }
  return names;
}

}  // namespace quillvane
