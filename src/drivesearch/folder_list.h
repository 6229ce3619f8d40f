// The two lists of the drive search beside the program's executable, a record of 401 bytes an
// entry: what is left out (exfolder.orv) and the folders that are junk whole (incfolder.orv).
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "platform/platform.h"

namespace quillvane {

inline constexpr std::string_view kExcludeFile = "exfolder.orv";
inline constexpr std::string_view kIncludeFile = "incfolder.orv";

inline constexpr std::string_view kFolderFlag = "9";  // of a folder in the exclude list
inline constexpr std::string_view kFileFlag = "1";  // of a file there, and of all included folders

inline constexpr std::size_t kPlaceBytes = 150;  // what a list keeps of each field
inline constexpr std::size_t kPlaceDescriptionBytes = 250;

// One entry of either list. Fields are without the blanks around them.
struct ListedPlace {
  std::string name;  // a folder's path, or a file's bare name
  std::string description;
  std::string flag;  // one digit

  [[nodiscard]] bool is_folder() const;  // in the exclude list: its flag's number is 9
  [[nodiscard]] bool is_file() const;    // its flag's number is 1
};

struct FolderList {
  std::vector<ListedPlace> places;  // those with a name
  std::string problem;              // why a list that is there was not read; empty when it was
};

// A missing list has no places.
[[nodiscard]] FolderList read_folder_list(const Platform& platform, const std::string& path);

// The same, and makes a missing list: an empty one.
[[nodiscard]] FolderList open_folder_list(const Platform& platform, const std::string& path);

// Makes the list hold exactly these places, at one stroke; false when it cannot.
[[nodiscard]] bool write_folder_list(const Platform& platform, const std::string& path,
                                     const std::vector<ListedPlace>& places);

}  // namespace quillvane
