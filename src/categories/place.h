// A place where a category looks, and the engine that walks a list of them.
#pragma once

#include <span>
#include <string>
#include <vector>

namespace quillvane {

class JunkPage;

enum class Take {
  kMatching,    // every file that matches
  kEmptyFiles,  // of those the empty ones
  kClrFolders,  // the matching files of the direct subfolders whose path holds "clr_"
};

// A folder, by an environment variable and what follows it, and the files to take from it and
// below.
struct Place {
  const char* base;
  const char* suffix;
  const char* pattern;
  Take take = Take::kMatching;
};

// The whole routine of a category that is a list of places: begins it, walks them, ends it.
void scan_places(JunkPage& page, int node, std::span<const Place> places);

// Walks the places, between begin_category and end_category.
void walk_places(JunkPage& page, int node, std::span<const Place> places);

// The names of the direct subfolders, in the order of the file system; empty when there are none.
[[nodiscard]] std::vector<std::string> subfolder_names(const JunkPage& page,
                                                       const std::string& folder);

}  // namespace quillvane
