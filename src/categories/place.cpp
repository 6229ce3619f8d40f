#include "categories/place.h"

#include "categories/category_frame.h"
#include "core/form7.h"
#include "platform/unicode_case.h"

namespace quillvane {

namespace {

void scan_clr_folders(Form7& form, const std::string& folder, const char* pattern, int node) {
  for (const std::string& name : subfolder_names(form, folder)) {
    const std::string path = folder + "\\" + name;
    if (lower_case(path).find("clr_") != std::string::npos) form.srch(path, pattern, node);
  }
}

void scan_place(Form7& form, const Place& place, int node) {
  const std::string folder = form.platform().environment.get(place.base) + place.suffix;
  switch (place.take) {
    case Take::kMatching:
      form.srch(folder, place.pattern, node);
      break;
    case Take::kEmptyFiles:
      form.srch2(folder, place.pattern, node);
      break;
    case Take::kClrFolders:
      scan_clr_folders(form, folder, place.pattern, node);
      break;
  }
}

}  // namespace

void walk_places(Form7& form, int node, std::span<const Place> places) {
  for (const Place& place : places) scan_place(form, place, node);
}

void scan_places(Form7& form, int node, std::span<const Place> places) {
  begin_category(form, node);
  walk_places(form, node, places);
  end_category(form, node);
}

std::vector<std::string> subfolder_names(const Form7& form, const std::string& folder) {
  std::vector<std::string> names;
  for (const FolderEntry& entry : form.platform().files.list_folder(folder, "*.*")) {
    if (entry.is_folder()) names.push_back(entry.name);
  }
  return names;
}

}  // namespace quillvane
